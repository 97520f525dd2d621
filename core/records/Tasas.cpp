#include "core/records/Tasas.h"

#include "core/base/ErrorZT.h"
#include "core/run/Entorno.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"

Tasas LeerTasas(qint16 ejercicio, qint16 periodo) {
    return ServidorDeReferencia<svrZELT::cZTDatosGeneral>().CargarTipImp(ejercicio, periodo);
}

const Valor& Tasa(const Tasas& tasas, int k) {
    if (!tasas) {
        throw ErrorZT(NumError::NoCoincidenTipos);
    }
    return Elemento(*tasas, k - 1);
}
