#include "data/svrZELT/cZTTraspaso.h"

#include "data/Migracion.h"

namespace svrZELT {

bool cZTTraspaso::Traspaso() const {
    if (ExaminarFichero(mdbmod).clase == ClaseFichero::NoExiste) {
        CrearAlmacenDeUsuario(mdbmod);
    }
    try {
        Almacen almacen(ClaseAlmacen::Usuario, mdbmod, Versiones::LaActualYAnteriores);
        ActualizarAlmacen(almacen, PasosDelUsuario());
        ComprobarIntegridad(almacen);
    } catch (const SQLite::Exception& error) {
        throw FalloDeAlmacen(error, mdbmod);
    }
    return false;
}

}  // namespace svrZELT
