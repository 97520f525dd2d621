#include "core/online/FicheroLocal.h"

#include <QFileInfo>
#include <QSaveFile>

#include "core/base/FalloDeFichero.h"

namespace {

ErrorZT FalloDeAcceso(const QFileDevice& fichero) {
    return FalloDeFichero(NumError::ErrorAccesoRuta, fichero.fileName(), fichero.errorString());
}

}  // namespace

void BorrarSiExiste(const QString& ruta) {
    const QFileInfo anterior(ruta);
    QFile fichero(ruta);
    // A link that leads nowhere does not "exist", and would be followed when the file is written.
    if ((anterior.exists() || anterior.isSymLink()) && !fichero.remove()) {
        throw FalloDeAcceso(fichero);
    }
}

void EscribirEntero(const QString& ruta, const QByteArray& contenido) {
    BorrarSiExiste(ruta);
    QSaveFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly) || fichero.write(contenido) != contenido.size() ||
        !fichero.commit()) {
        throw FalloDeAcceso(fichero);
    }
}
