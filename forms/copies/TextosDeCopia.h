#pragma once

#include <QString>

#include "core/copies/CanalCopias.h"

// Texts of the dialogs of the copies, in the language in force.

/// Why, in one sentence or two.
QString TextoDeMotivo(const FalloDeCopia& fallo);

/// What could not be done (the text of that key), with which file, and why.
QString TextoDeFallo(QStringView clave, const FalloDeCopia& fallo);

/// A day, in the format of the language; "not on record" when it is not valid.
QString TextoDeDia(QDate dia);

/// When a copy was made: the day, and the time where it is known.
QString TextoDeMomento(const ResumenDeCopia& copia);
