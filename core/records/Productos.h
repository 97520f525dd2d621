#pragma once

#include "core/base/Modelo.h"
#include "core/run/IdDeTexto.h"

// The six products of the return. Their order holds everywhere: on the screens, in the buffers, on paper.
// Quantities are in thousands of litres, but for product 4, which is in metric tonnes.

/// Masks of quantities and money, and of rates.
inline constexpr auto kMascaraImporte = u"##,###,###,##0.00";
inline constexpr auto kMascaraTipo = u"#0.000000";

/// Id of the text that names product `k`, from 1, with its unit.
constexpr Id TextoDeProducto(int k) { return Id::PrimerProducto + (k - 1); }

/// Whether product `k` is in use in the returns of a year.
constexpr bool ProductoEnUso(int k, qint16 ejercicio) {
    return k <= kProductosEnUso || ejercicio < kEjercicioSinProducto6;
}
