#include "online/FicheroLocal.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include "base/ErrorZT.h"
#include "shell/Entorno.h"

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void Fallar(const QFileDevice& fichero) {
    throw ErrorZT(NumError::ErrorAccesoRuta, TextoDeError(NumError::ErrorAccesoRuta) + u": "_s +
                                                 QDir::toNativeSeparators(fichero.fileName()) + u". "_s +
                                                 fichero.errorString());
}

}  // namespace

QString EnCarpetaPrograma(const QString& nombre) {
    return Entorno().CarpetaPrograma + QDir::separator() + nombre;
}

void BorrarSiExiste(const QString& ruta) {
    const QFileInfo anterior(ruta);
    QFile fichero(ruta);
    // A link that leads nowhere does not "exist", and would be followed when the file is written.
    if ((anterior.exists() || anterior.isSymLink()) && !fichero.remove()) {
        Fallar(fichero);
    }
}

void EscribirEntero(const QString& ruta, const QByteArray& contenido) {
    QSaveFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly) || fichero.write(contenido) != contenido.size() ||
        !fichero.commit()) {
        Fallar(fichero);
    }
}
