#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/// Writes a file of a test; its contents before are gone.
inline void EscribirFichero(const QString& ruta, const QByteArray& contenido) {
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly) || fichero.write(contenido) != contenido.size()) {
        qFatal("cannot write %s", qUtf8Printable(ruta));
    }
}

/// All bytes of a file; nothing when it is missing.
inline QByteArray LeerFichero(const QString& ruta) {
    QFile fichero(ruta);
    return fichero.open(QIODevice::ReadOnly) ? fichero.readAll() : QByteArray();
}
