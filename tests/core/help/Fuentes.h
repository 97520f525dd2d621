#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// The sources of the program, read as text: what they can show is found there.

struct Fuente {
    /// Path from the root of the sources.
    QString ruta;
    QString texto;
};

/// The files of those folders and of the folders in them, by name, in a fixed order.
QList<Fuente> Fuentes(const QStringList& carpetas, const QStringList& nombres);

/// The string literals of a source; those that stand one after the other are one.
QStringList Literales(const QString& fuente);

/// The arguments, as they are written, of each call of `nombre`, or of each aggregate made with it.
QList<QStringList> Argumentos(const QString& fuente, const QString& nombre);
