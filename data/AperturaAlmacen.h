#pragma once

#include <SQLiteCpp/Database.h>

#include <QString>

#include "data/Almacen.h"

// Opening of a connection, by `Almacen` alone, and of the files beside it.

/// State of the file at `ruta`. Raises 3024 or 3051 unless a regular file stands there.
EstadoFichero ExigirFicheroRegular(const QString& ruta);

/// Opens the connection, checks the identity of the file before any statement runs, sets the connection up
/// and checks the version: no effect on a file that is refused. `espera` in milliseconds.
SQLite::Database AbrirBase(ClaseAlmacen clase, const QString& ruta, Versiones versiones, int espera);
