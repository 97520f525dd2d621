#pragma once

#include <QString>

#include "core/base/TextosPropios.h"
#include "core/run/IdDeTexto.h"

/// The text of row `id` + `OffsetIdioma` of the table of texts. Nothing is cached: a change of language
/// takes effect at the next call. Raises 326 for a row that does not exist; there is no fallback.
QString Texto(Id id);

/// The same in the language of `offset` (0 or 1000), whatever the one in force.
QString TextoEn(Id id, qint16 offset);

/// The text of exactly that row, whatever the language.
QString TextoDeFila(int fila);

/// The first text in Castellano, the second in Euskera: for texts that are not in the table.
QString IDI(const QString& castellano, const QString& euskera);
