#include "core/printing/DatosDeAnexo.h"

#include "core/records/cZTDeclaraciones.h"
#include "core/run/Entorno.h"
#include "core/services/svrZELT/cZTAnexos.h"

namespace impreso {

namespace {

qint16 ContarEstablecimientos(const Tabla& buffer) {
    qint32 numero = 0;
    QString anterior;
    for (int fila = 1; fila <= buffer.UltimaFila(); ++fila) {
        const QString cim = buffer(DatosDeAnexo::Columna::kCIM, fila).aTexto();
        if (cim != anterior) {
            anterior = cim;
            ++numero;
        }
    }
    return Valor(numero).aEntero16();
}

}  // namespace

DatosDeAnexo CargarDatosDeAnexo() {
    DatosDeAnexo datos;
    datos.vBufferAnexo =
        ServidorDeUsuario<svrZELT::cZTAnexos>().CargarEstablecimientos(oDeclaraciones().CSDC);
    if (!datos.vBufferAnexo.EsNula()) {
        datos.NumEstablecimientos = ContarEstablecimientos(datos.vBufferAnexo);
    }
    return datos;
}

}  // namespace impreso
