#pragma once

#include <string>

#include "core/store/Consulta.h"

// Orders on a table of the store, made from the columns of its records. Keep the texts while the store is
// open: it prepares each of them once. Column 0 is the key. Parameter i + 1 of the orders that write is
// element i of the record.

/// "SELECT columns resto"; `resto` is what follows the columns.
[[nodiscard]] std::string OrdenDeLeer(ColumnasDeAlmacen columnas, const char* resto);

/// Inserts a record, with a new key where its key is 0.
[[nodiscard]] std::string OrdenDeInsertar(const char* tabla, ColumnasDeAlmacen columnas);

/// Changes the record with that key.
[[nodiscard]] std::string OrdenDeCambiar(const char* tabla, ColumnasDeAlmacen columnas);

/// Binds the record to an order that writes. Raises 9 for one with too few elements, and what the conversions
/// raise.
void PonerRegistro(Consulta& orden, ColumnasDeAlmacen columnas, const Registro& registro);
