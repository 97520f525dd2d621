#include "core/services/svrZELT/cZTGeneral.h"

#include "core/services/OrdenesDeTabla.h"

namespace svrZELT {

Tabla cZTGeneral::ExisteDec() const {
    return LeerUsuario(mdbmod, [](Almacen& almacen) {
        static const std::string orden = OrdenDeLeer(
            ListadoDeRecientes::kColumnas, "FROM T05_DECLARANTES ORDER BY T05_ESCRITURA DESC, T05_CSDE DESC");
        Consulta consulta(almacen, orden.c_str());
        return LeerLista(consulta, ListadoDeRecientes::kColumnas);
    });
}

}  // namespace svrZELT
