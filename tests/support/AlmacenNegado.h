#pragma once

#include "core/run/Entorno.h"
#include "core/store/Almacen.h"

/// Has the user's store refuse every write, or take them again.
inline void NegarEscritura(bool negar) {
    AbrirAlmacen(ClaseAlmacen::Usuario, Entorno().mdbmod)
        ->Base()
        .exec(negar ? "PRAGMA query_only = ON" : "PRAGMA query_only = OFF");
}
