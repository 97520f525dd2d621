#include "core/services/svrZELT/cZTGeneral.h"

#include "core/store/Consulta.h"

namespace svrZELT {

Tabla cZTGeneral::ExisteDec() const {
    return LeerUsuario(mdbmod, [](Almacen& almacen) {
        Consulta consulta(almacen,
                          "SELECT T05_CSDE, T05_NIF, T05_NOMBRE FROM T05_DECLARANTES "
                          "ORDER BY T05_ESCRITURA DESC, T05_CSDE DESC");
        return LeerLista(consulta, {Campo::Entero32, Campo::Texto, Campo::Texto});
    });
}

}  // namespace svrZELT
