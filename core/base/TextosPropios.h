#pragma once

#include "core/base/CatalogoDeTextos.h"

// Look-up in the catalogue of the program's own texts.

/// The text of that key in the language in force. Raises 326 for an unknown key.
QString TextoPropio(QStringView clave);

/// The same in the language of `offset` (0 or 1000), whatever the one in force.
QString TextoPropioDe(QStringView clave, qint16 offset);
