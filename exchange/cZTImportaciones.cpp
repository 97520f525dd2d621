#include "exchange/cZTImportaciones.h"

#include "base/Instancias.h"
#include "data/svrZELT/cZTDeclarante.h"
#include "shell/Entorno.h"

void cZTImportaciones::ImportarDeclarante(qint32 lngCSDE) {
    auto& registro = std::get<Tabla>(vBufferImportados);
    if (lngCSDE != 0) {
        registro(0, 0) = lngCSDE;
    }
    svrZELT::cZTDeclarante servidor;
    servidor.mdbmod = Entorno().mdbmod;
    servidor.ImportarDte(registro);
}

cZTImportaciones& oImportaciones() { return InstanciaUnica<cZTImportaciones>(); }
