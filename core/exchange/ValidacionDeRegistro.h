#pragma once

#include <QString>
#include <optional>

#include "core/base/Tabla.h"

/// Limit of `Validar` that the import gives: more than the fields of a line can hold, so that the length of a
/// line is never a fault of its own.
inline constexpr int kLimiteDeLargo = 149;

/// Checks a record of `TrocearRegistro` and gives the codes of its faults (16-bit) from element 1 on, in the
/// order of its fields; element 0 stays Empty, so that an upper bound of 0 means none. When the values are
/// longer than `limite` in all, the one fault is that (14). A failure is shown under "Importación.Validar"
/// and nothing at all comes back.
[[nodiscard]] Registro Validar(const Tabla& registro, int limite);

/// Message of a code of `Validar` in the language in force. The codes 19 to 26 are reserved and have none of
/// their own; neither has any other code outside 1 to 15.
[[nodiscard]] std::optional<QString> MensajeDeFalta(int codigo);
