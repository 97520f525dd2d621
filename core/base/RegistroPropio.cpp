#include "core/base/RegistroPropio.h"

#include <QFile>
#include <QFileInfo>

void AnadirARegistro(const QString& ruta, const QByteArray& lineas) {
    QFile fichero(ruta);
    if (!lineas.isEmpty() && !QFileInfo(fichero).isSymLink() &&
        fichero.open(QIODevice::WriteOnly | QIODevice::Append, QFile::ReadOwner | QFile::WriteOwner)) {
        fichero.write(lineas);
    }
}
