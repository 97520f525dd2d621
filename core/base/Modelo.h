#pragma once

#include <QtGlobal>

// What the return counts by: six products, four quarters.

inline constexpr int kProductos = 6;
inline constexpr int kTrimestres = 4;

/// The year from which product 6 is gone, and the products in use from then on.
inline constexpr qint16 kEjercicioSinProducto6 = 2003;
inline constexpr int kProductosEnUso = kProductos - 1;
