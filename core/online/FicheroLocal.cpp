#include "core/online/FicheroLocal.h"

#include <QFileInfo>
#include <QSaveFile>

#include "core/base/FalloDeFichero.h"

namespace {

/// A failed write is told by the file: what it undoes after it may have failed too.
ErrorZT FalloDeAcceso(const QFileDevice& fichero) {
    if (NumeroDeEscritura(fichero.error()) == NumError::DiscoLleno) {
        return FalloDeFichero(NumError::DiscoLleno, fichero.fileName());
    }
    return FalloDelSistema(NumError::ErrorAccesoRuta, fichero.fileName());
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
