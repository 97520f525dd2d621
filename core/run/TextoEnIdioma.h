#pragma once

#include <QString>

/// A text of the program's own catalogue in the language of `offset` (0 or 1000), whatever the one in force.
/// Raises 326 for an unknown key.
QString TextoPropioDe(QStringView clave, qint16 offset);
