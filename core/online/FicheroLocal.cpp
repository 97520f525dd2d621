#include "core/online/FicheroLocal.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

ErrorZT FalloDe(const QFileDevice& fichero) {
    return FalloDeFicheroLocal(NumError::ErrorAccesoRuta, fichero.fileName(), fichero.errorString());
}

}  // namespace

ErrorZT FalloDeFicheroLocal(NumError numero, const QString& ruta, const QString& causa) {
    const QString cola = causa.isEmpty() ? QString() : u". "_s + causa;
    return {numero, TextoDeError(numero) + u": "_s + QDir::toNativeSeparators(ruta) + cola};
}

void BorrarSiExiste(const QString& ruta) {
    const QFileInfo anterior(ruta);
    QFile fichero(ruta);
    // A link that leads nowhere does not "exist", and would be followed when the file is written.
    if ((anterior.exists() || anterior.isSymLink()) && !fichero.remove()) {
        throw FalloDe(fichero);
    }
}

void EscribirEntero(const QString& ruta, const QByteArray& contenido) {
    BorrarSiExiste(ruta);
    QSaveFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly) || fichero.write(contenido) != contenido.size() ||
        !fichero.commit()) {
        throw FalloDe(fichero);
    }
}
