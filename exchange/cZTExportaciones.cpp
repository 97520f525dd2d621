#include "exchange/cZTExportaciones.h"

#include "base/Instancias.h"
#include "data/svrZELT/cZTDeclarante.h"
#include "shell/Entorno.h"

void cZTExportaciones::DeclaranteAExportar(qint32 CSDE) {
    svrZELT::cZTDeclarante servidor;
    servidor.mdbmod = Entorno().mdbmod;
    servidor.CargarDeclarante(CSDE, vBufferDeclarante);
}

cZTExportaciones& oExportaciones() { return InstanciaUnica<cZTExportaciones>(); }
