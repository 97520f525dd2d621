#include "core/records/cZTListaDeclaraciones.h"

#include "core/base/Instancias.h"
#include "core/base/Procedimiento.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/records/cZTDeclarante.h"
#include "core/run/Entorno.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"

namespace {

svrZELT::cZTDeclaraciones Servidor() { return ServidorDeUsuario<svrZELT::cZTDeclaraciones>(); }

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
