#pragma once

#include <array>
#include <span>

/// Kinds of field of a result or of a row to be stored.
enum class TipoDeColumna { Entero16, Entero32, Doble, Texto };

/// A column of a table of the store, or an expression over columns.
struct ColumnaDeAlmacen {
    /// Place in the buffer, from 0.
    int lugar = 0;
    const char* nombre = nullptr;
    TipoDeColumna tipo = TipoDeColumna::Texto;
};

using ColumnasDeAlmacen = std::span<const ColumnaDeAlmacen>;

/// Whether each column stands in its table at the place that it has in the buffer.
constexpr bool EnOrden(ColumnasDeAlmacen columnas) {
    int lugar = 0;
    for (const ColumnaDeAlmacen& columna : columnas) {
        if (columna.lugar != lugar++) {
            return false;
        }
    }
    return true;
}
