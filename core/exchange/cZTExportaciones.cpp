#include "core/exchange/cZTExportaciones.h"

#include "core/base/Instancias.h"
#include "core/run/Entorno.h"
#include "core/services/svrZELT/cZTDeclarante.h"

void cZTExportaciones::DeclaranteAExportar(qint32 CSDE) {
    ServidorDeUsuario<svrZELT::cZTDeclarante>().CargarDeclarante(CSDE, vBufferDeclarante);
}

cZTExportaciones& oExportaciones() { return InstanciaUnica<cZTExportaciones>(); }
