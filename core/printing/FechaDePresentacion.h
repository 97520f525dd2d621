#pragma once

#include <QString>
#include <optional>

// Rules of the date of presentation, as a text in the form of the language of `OffsetIdioma`.

/// The text of no date: "__/__/____" or "____/__/__".
QString MascaraDeFecha();

/// The date of today.
QString FechaDeHoy();

/// The message that stands against printing with `fecha`, or nothing. A text equal to `vacia`, the mask of
/// no date, is refused as too early, but for a field that is not `habilitado`; the empty text is no date. The
/// limit that the message names is shown in the format of the texts (text 170).
std::optional<QString> FaltaDeFecha(const QString& fecha, const QString& vacia, bool habilitado);
