#pragma once

#include "core/store/Consulta.h"

// What the servers of the user's store have in common. Writes run within the caller's transaction.

/// Runs an order that inserts a row (`clave` 0) or changes the row with that key, and gives the key of the
/// row. Raises 3075 when there is no row with the key.
qint32 GuardarFila(Almacen& almacen, Consulta& orden, qint32 clave);

/// Makes the declarant the one last worked on: by his key, or as the owner of a declaration or of an
/// establishment. Nothing happens for an unknown key.
void MarcarDeclarante(Almacen& almacen, qint32 CSDE);
void MarcarTitularDeDeclaracion(Almacen& almacen, qint32 CSDC);
void MarcarTitularDeEstablecimiento(Almacen& almacen, qint32 CSES);

/// Sets the sums of a declaration (by product, and the total quota) from its annex lines. Rates stay.
void SumarAnexos(Almacen& almacen, qint32 CSDC);

/// Number of declarations of a declarant.
qint32 ContarDeclaraciones(Almacen& almacen, qint32 CSDE);
