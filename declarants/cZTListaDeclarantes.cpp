#include "declarants/cZTListaDeclarantes.h"

#include "base/Instancias.h"
#include "base/Procedimiento.h"
#include "data/svrZELT/cZTDeclarante.h"
#include "shell/Entorno.h"

Tabla cZTListaDeclarantes::ObtenerDeclarantes() const {
    return Procedimiento(u"cListaDeclarantes.ObtenerDeclarantes", [] {
        svrZELT::cZTDeclarante servidor;
        servidor.mdbmod = Entorno().mdbmod;
        return servidor.ObtenerDeclarantes();
    });
}

cZTListaDeclarantes& oListaDeclarantes() { return InstanciaUnica<cZTListaDeclarantes>(); }
