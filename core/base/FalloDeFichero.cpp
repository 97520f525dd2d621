#include "core/base/FalloDeFichero.h"

#include <QDir>

#include "core/base/TextosPropios.h"
#include "core/base/plataforma/UltimoFallo.h"

using namespace Qt::StringLiterals;

ErrorZT FalloDeFichero(NumError numero, const QString& ruta, const QString& causa) {
    const QString razon = numero == NumError::DiscoLleno ? TextoPropio(u"causa_disco_lleno") : causa;
    const QString cola = razon.isEmpty() ? QString() : u' ' + razon;
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
    const QString causa = TextoPropio(CausaDelUltimoFallo());
    return FalloDeFichero(NumeroDeEscritura(fichero.error()), ruta, causa);
}

ErrorZT FalloDelSistema(NumError otro, const QString& ruta) {
    const NumError numero = NumeroDelUltimoFallo(otro);
    const QStringView causa = CausaDelUltimoFallo();
    return FalloDeFichero(numero, ruta, TextoPropio(causa));
}

void EscribirTodo(QFileDevice& fichero, const QByteArray& datos, const QString& ruta) {
    for (qint64 escrito = 0; escrito < datos.size();) {
        const qint64 parte = fichero.write(datos.constData() + escrito, datos.size() - escrito);
        if (parte <= 0) {
            throw FalloDeEscritura(fichero, ruta);
        }
        escrito += parte;
    }
}
