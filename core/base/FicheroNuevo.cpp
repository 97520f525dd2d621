#include "core/base/FicheroNuevo.h"

#include <QDir>
#include <QFile>

#include "core/base/CarpetaNueva.h"
#include "core/base/FalloDeFichero.h"
#include "core/base/FicheroProvisional.h"
#include "core/base/plataforma/SistemaFicheros.h"

using namespace Qt::StringLiterals;

namespace {

/// Writes all of it to `ruta`, and has it reach the disk. `destino` is what is told of a failure.
void EscribirContenido(const QString& ruta, const QByteArray& contenido, const QString& destino) {
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly | QIODevice::ExistingOnly | QIODevice::Unbuffered)) {
        throw FalloDelSistema(NumError::ErrorAccesoRuta, destino);
    }
    EscribirTodo(fichero, contenido, destino);
    if (!SincronizarFichero(fichero)) {
        throw FalloDelSistema(NumError::ErrorDispositivo, destino);
    }
}

}  // namespace

QString GuardarFicheroNuevo(const QString& carpeta, const QString& nombre, const QString& extension,
                            const QByteArray& contenido) {
    const QDir lugar(carpeta);
    // Where nothing gets written none is left.
    const CarpetaDePaso deLugar(carpeta);
    CrearCarpeta(carpeta, NumError::NoExisteRuta);
    QString destino = lugar.filePath(nombre + extension);
    // A document is for those whom the user's files are for.
    const FicheroProvisional provisional(destino, Lectores::LosHabituales);
    EscribirContenido(provisional.Ruta(), contenido, destino);
    for (int numero = 2; !DarNombre(provisional.Ruta(), destino); ++numero) {
        destino = lugar.filePath(nombre + u" (%1)"_s.arg(numero) + extension);
    }
    return destino;
}

void ReponerFichero(const QString& ruta, const QByteArray& contenido) {
    const FicheroProvisional provisional(ruta, Lectores::LosHabituales);
    EscribirContenido(provisional.Ruta(), contenido, ruta);
    SustituirFichero(provisional.Ruta(), ruta);
}

void AsegurarFicherosNuevos(const QString& carpeta) { SincronizarCarpetaDe(QDir(carpeta).filePath(u"."_s)); }
