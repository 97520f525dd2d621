#include "declarations/cZTListaDeclaraciones.h"

#include "base/Instancias.h"
#include "base/Procedimiento.h"
#include "data/svrZELT/cZTDeclaraciones.h"
#include "declarants/cZTDeclarante.h"
#include "shell/Entorno.h"

namespace {

svrZELT::cZTDeclaraciones Servidor() {
    svrZELT::cZTDeclaraciones servidor;
    servidor.mdbmod = Entorno().mdbmod;
    return servidor;
}

}  // namespace

void cZTListaDeclaraciones::NumeroDeDeclaraciones() {
    Procedimiento(u"cListaDeclaraciones.NumeroDeDeclaraciones",
                  [this] { NumDecla = Servidor().NumeroDeclaraciones(oDeclarante().CSDE); });
}

void cZTListaDeclaraciones::RellenarDeclaraciones() {
    Procedimiento(u"cListaDeclaraciones.RellenarDeclaraciones", [this] {
        NumeroDeDeclaraciones();
        BufferDeclaraciones = NumDecla < 1 ? Tabla() : Servidor().ObtenerDeclaraciones(oDeclarante().CSDE);
    });
}

cZTListaDeclaraciones& oListaDeclaraciones() { return InstanciaUnica<cZTListaDeclaraciones>(); }
