#include "core/base/FalloDeFichero.h"

#include <QDir>

using namespace Qt::StringLiterals;

ErrorZT FalloDeFichero(NumError numero, const QString& ruta, const QString& causa) {
    const QString cola = causa.isEmpty() ? QString() : u' ' + causa;
    return {numero, TextoDeError(numero) + u": "_s + QDir::toNativeSeparators(ruta) + u'.' + cola};
}

ErrorZT FalloSinCausa(NumError numero, const QString& ruta) {
    return {numero, TextoDeError(numero) + u": "_s + QDir::toNativeSeparators(ruta)};
}

// The library tells a full disk from other failures of writing.
NumError NumeroDeEscritura(QFileDevice::FileError error) {
    return error == QFileDevice::ResourceError ? NumError::DiscoLleno : NumError::ErrorDispositivo;
}

ErrorZT FalloDeEscritura(const QFileDevice& fichero, const QString& ruta) {
    const NumError numero = NumeroDeEscritura(fichero.error());
    // "Disk full" is the whole cause.
    return FalloDeFichero(numero, ruta, numero == NumError::DiscoLleno ? QString() : fichero.errorString());
}
