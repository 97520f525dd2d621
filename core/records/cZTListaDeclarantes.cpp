#include "core/records/cZTListaDeclarantes.h"

#include "core/base/Instancias.h"
#include "core/base/Procedimiento.h"
#include "core/run/Entorno.h"
#include "core/services/svrZELT/cZTDeclarante.h"

Tabla cZTListaDeclarantes::ObtenerDeclarantes() const {
    return Procedimiento(u"cListaDeclarantes.ObtenerDeclarantes",
                         [] { return ServidorDeUsuario<svrZELT::cZTDeclarante>().ObtenerDeclarantes(); });
}

cZTListaDeclarantes& oListaDeclarantes() { return InstanciaUnica<cZTListaDeclarantes>(); }
