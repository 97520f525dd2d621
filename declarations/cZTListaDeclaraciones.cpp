#include "declarations/cZTListaDeclaraciones.h"

#include "base/Instancias.h"
#include "base/Procedimiento.h"
#include "data/svrZELT/cZTDeclaraciones.h"
#include "declarants/cZTDeclarante.h"
#include "declarations/cZTDeclaraciones.h"
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
    Procedimiento(u"cZTListaDeclaraciones.RellenarDeclaraciones", [this] {
        NumeroDeDeclaraciones();
        BufferDeclaraciones = NumDecla < 1 ? Tabla() : Servidor().ObtenerDeclaraciones(oDeclarante().CSDE);
    });
}

bool cZTListaDeclaraciones::EliminarDeclaracion(qint32 lngCSDC) const {
    return Procedimiento(u"cListaDeclaraciones.EliminarDeclaracion", [&] {
        oDeclaraciones().CSDC = lngCSDC;
        Servidor().EliminarDeclaraciones(lngCSDC);
        return true;
    });
}

cZTListaDeclaraciones& oListaDeclaraciones() { return InstanciaUnica<cZTListaDeclaraciones>(); }
