#pragma once

#include "core/run/Entorno.h"
#include "core/store/Almacen.h"

/// Has the kept connection to the user's store go on without waiting for the disk: for tests that write a
/// lot and pull no plug.
inline void NoEsperarAlDisco() {
    AbrirAlmacen(ClaseAlmacen::Usuario, Entorno().mdbmod)->Base().exec("PRAGMA synchronous = OFF");
}
