#pragma once

#include "core/run/Recuperacion.h"

/// Hundredths in a unit of a figure.
inline constexpr double kCentesimas = 100.0;

/// A figure in hundredths; one beyond `kCentesimasMaximas` is cut to it.
[[nodiscard]] qint64 EnCentesimas(double figura);

/// The lines of the annexes of the open declaration as the record has them, and which declaration it is.
[[nodiscard]] DatosSinGuardar AnexosPorGuardar();
