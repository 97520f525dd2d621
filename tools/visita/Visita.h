#pragma once

#include <QStringList>

/// The guided tour of the program in one language ("C" or "E"), on a program folder without data: works the
/// real forms through key and mouse events, as a user would, and leaves in `salida` a picture of every
/// screen. Gives the pictures.
QStringList Recorrer(const QString& salida, const QString& idioma);
