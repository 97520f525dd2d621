#include "core/exchange/cZTImportaciones.h"

#include "core/base/Instancias.h"
#include "core/run/Entorno.h"
#include "core/services/svrZELT/cZTDeclarante.h"

void cZTImportaciones::ImportarDeclarante(qint32 lngCSDE) {
    auto& registro = std::get<Tabla>(vBufferImportados);
    if (lngCSDE != 0) {
        registro(svrZELT::RegistroDeIntercambio::kValor, svrZELT::CamposDeDeclarante::kCSDE) = lngCSDE;
    }
    ServidorDeUsuario<svrZELT::cZTDeclarante>().ImportarDte(registro);
}

cZTImportaciones& oImportaciones() { return InstanciaUnica<cZTImportaciones>(); }
