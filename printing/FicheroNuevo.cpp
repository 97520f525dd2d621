#include "printing/FicheroNuevo.h"

#include <QDir>
#include <QFile>
#include <QScopeGuard>
#include <QUuid>

#include "base/ErrorZT.h"
#include "data/plataforma/SistemaFicheros.h"

using namespace Qt::StringLiterals;

namespace {

ErrorZT FalloDeFichero(NumError numero, const QString& ruta, const QString& causa) {
    return {numero, TextoDeError(numero) + u": "_s + QDir::toNativeSeparators(ruta) + u". "_s + causa};
}

/// The library tells a full disk from other failures of writing.
NumError NumeroDeEscritura(const QFile& fichero) {
    return fichero.error() == QFileDevice::ResourceError ? NumError::DiscoLleno : NumError::ErrorDispositivo;
}

/// Writes all of it to a file that was not there, and has it reach the disk. `destino` is what is told of a
/// failure.
void EscribirTemporal(QFile& temporal, const QByteArray& contenido, const QString& destino) {
    if (!temporal.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered)) {
        throw FalloDeFichero(NumError::ErrorAccesoRuta, destino, temporal.errorString());
    }
    for (qint64 escrito = 0; escrito < contenido.size();) {
        const qint64 parte = temporal.write(contenido.constData() + escrito, contenido.size() - escrito);
        if (parte <= 0) {
            throw FalloDeFichero(NumeroDeEscritura(temporal), destino, temporal.errorString());
        }
        escrito += parte;
    }
    if (!SincronizarFichero(temporal)) {
        throw FalloDeFichero(NumError::ErrorDispositivo, destino, u"No se puede escribir en el disco."_s);
    }
    temporal.close();
}

}  // namespace

QString GuardarFicheroNuevo(const QString& carpeta, const QString& nombre, const QString& extension,
                            const QByteArray& contenido) {
    const QDir lugar(carpeta);
    if (!lugar.mkpath(u"."_s)) {
        throw FalloDeFichero(NumError::NoExisteRuta, carpeta, u"No se puede crear la carpeta."_s);
    }
    QString destino = lugar.filePath(nombre + extension);
    QFile temporal(lugar.filePath(u".zelt-"_s + QUuid::createUuid().toString(QUuid::WithoutBraces)));
    const auto salida = qScopeGuard([&temporal] { temporal.remove(); });
    EscribirTemporal(temporal, contenido, destino);
    for (int numero = 2; !PublicarFichero(temporal.fileName(), destino); ++numero) {
        destino = lugar.filePath(nombre + u" (%1)"_s.arg(numero) + extension);
    }
    return destino;
}
