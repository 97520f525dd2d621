#pragma once

#include "bench/AlmacenDeBanco.h"
#include "core/base/Modelo.h"
#include "core/records/cZTAnexos.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTNuevaDec.h"

/// Key of an establishment of the open declaration by its row, from 1.
inline qint32 EstablecimientoDeBanco(int fila) {
    return oAnexos().BufferEstDecl(cZTAnexos::ColumnaDeEstDecl::kCSES, fila).aEntero32();
}

/// The annex lines of all establishments of the open declaration.
inline Tabla LineasDeBanco() {
    const int cuantas = oAnexos().BufferEstDecl.UltimaFila() * kProductosEnUso;
    using Columna = cZTAnexos::Columna;
    Tabla lineas(Columna::kCUOTA, cuantas);
    for (int linea = 1; linea <= cuantas; ++linea) {
        lineas(Columna::kCSDC, linea) = oDeclaraciones().CSDC;
        lineas(Columna::kCSES, linea) = EstablecimientoDeBanco(1 + (linea - 1) / kProductosEnUso);
        lineas(Columna::kProducto, linea) = static_cast<qint16>(1 + (linea - 1) % kProductosEnUso);
        lineas(Columna::kSUMEX, linea) = 1250.0;
        lineas(Columna::kBASIM, linea) = 10000.0 + linea;
        lineas(Columna::kTIPIM, linea) = 24e6;
        lineas(Columna::kCUOTA, linea) = 0.0;
    }
    return lineas;
}

/// A stored declaration of the second quarter of that year, of a declarant of its own with so many
/// establishments, with lines for all of them, open.
inline void AbrirDeclaracionDeBanco(const AlmacenDeBanco& almacen, qint16 ejercicio, int establecimientos) {
    oDeclarante().CSDE = almacen.CrearDeclarantes(1);
    almacen.CrearEstablecimientos(oDeclarante().CSDE, establecimientos);
    oNuevaDec().Ejercicio = oDeclaraciones().Ejercicio = ejercicio;
    oNuevaDec().Periodo = oDeclaraciones().Periodo = 2;
    oDeclaraciones().CSDC = oNuevaDec().GuardarDeclaracion();
    oDeclaraciones().CargarDeclaracion();
    oAnexos().RellenarEstDecl();
    oAnexos().ComprobarDiferenciasDeTipo();
    oAnexos().BufferAnexos = LineasDeBanco();
    (void)oAnexos().GuardarDeclaracion();
}
