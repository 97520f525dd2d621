#pragma once

#include <QDir>
#include <QDirIterator>
#include <QString>

/// Copies both help sets into a program folder.
inline void InstalarAyuda(const QString& carpetaPrograma) {
    const QString origen = QStringLiteral(ZELT_AYUDA);
    QDirIterator ficheros(origen, QDir::Files, QDirIterator::Subdirectories);
    while (ficheros.hasNext()) {
        const QString fichero = ficheros.next();
        const QString destino = carpetaPrograma + QStringLiteral("/Ayuda") + fichero.mid(origen.size());
        QDir().mkpath(QFileInfo(destino).path());
        if (!QFile::copy(fichero, destino)) {
            qFatal("cannot copy %s", qUtf8Printable(fichero));
        }
    }
}
