#include "forms/runtime/AnexosPorGuardar.h"

#include <algorithm>
#include <cmath>

#include "core/records/cZTAnexos.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/records/cZTDeclarante.h"
#include "forms/runtime/NombresDeFormulario.h"

using namespace Qt::StringLiterals;

qint64 EnCentesimas(double figura) {
    constexpr auto kMaximo = static_cast<double>(kCentesimasMaximas);
    return static_cast<qint64>(std::clamp(std::round(figura * kCentesimas), -kMaximo, kMaximo));
}

DatosSinGuardar AnexosPorGuardar() {
    using Columna = cZTAnexos::Columna;
    const cZTDeclaraciones& declaracion = oDeclaraciones();
    const Tabla& lineas = oAnexos().BufferAnexos;
    DatosSinGuardar datos{.formulario = Forma::DetDeclaracion.toString(),
                          .CSDE = oDeclarante().CSDE,
                          .NIF = oDeclarante().NIF,
                          .clave = declaracion.CSDC,
                          .rasgo = u"%1/%2"_s.arg(declaracion.Ejercicio).arg(declaracion.Periodo)};
    for (int fila = 1; !lineas.EsNula() && fila <= lineas.UltimaFila(); ++fila) {
        // The store keeps hundredths.
        datos.lineas.push_back({.CSES = lineas(Columna::kCSES, fila).aEntero32(),
                                .producto = lineas(Columna::kProducto, fila).aEntero16(),
                                .exento = EnCentesimas(lineas(Columna::kSUMEX, fila).aDoble() / kCentesimas),
                                .base = EnCentesimas(lineas(Columna::kBASIM, fila).aDoble() / kCentesimas)});
    }
    return datos;
}
