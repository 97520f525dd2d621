#pragma once

#include <SQLiteCpp/Database.h>

#include <QString>

#include "core/base/plataforma/SistemaFicheros.h"

/// The two kinds of store: the user's, read and written, and the reference, read-only. A copy of the user's
/// store is read as a file that nobody changes: without locks, and without a look at a journal beside it.
enum class ClaseAlmacen { Usuario, Referencia, Copia };

/// Which versions of a store are let in. An older one is let in only to be brought up.
enum class Versiones { LaActual, LaActualYAnteriores };

// Opening of a connection, by `Almacen` alone, and of the files beside it.

/// State of the file at `ruta`. Raises 3024 or 3051 unless a regular file stands there; the cause names what
/// does.
EstadoFichero ExigirFicheroRegular(const QString& ruta);

/// Opens the connection, checks the identity of the file before any statement runs, sets the connection up
/// and checks the version: no effect on a file that is refused. `espera` in milliseconds.
SQLite::Database AbrirBase(ClaseAlmacen clase, const QString& ruta, Versiones versiones, int espera);
