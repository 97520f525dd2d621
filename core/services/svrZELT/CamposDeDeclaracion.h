#pragma once

#include "core/base/Modelo.h"
#include "core/services/svrZELT/CamposDeAnexo.h"
#include "core/store/ColumnaDeAlmacen.h"

namespace svrZELT {

/// The record of a declaration: its head, the figures of each product, and the total.
struct CamposDeDeclaracion {
    enum Columna : int { kCSDC, kCSDE, kEjercicio, kPeriodo, kPrimeraFigura };

    static constexpr std::array kCabeza{
        ColumnaDeAlmacen{kCSDC, "T07_CSDC", TipoDeColumna::Entero32},
        ColumnaDeAlmacen{kCSDE, "T07_CSDE", TipoDeColumna::Entero32},
        ColumnaDeAlmacen{kEjercicio, "T07_EJERCICIO", TipoDeColumna::Entero16},
        ColumnaDeAlmacen{kPeriodo, "T07_PERIODO", TipoDeColumna::Entero16}};
    static_assert(EnOrden(kCabeza) && kCabeza.size() == kPrimeraFigura);

    /// Element of a figure of product `k`, from 1.
    static constexpr int Lugar(int k, int figura) { return kPrimeraFigura + (k - 1) * kFiguras + figura; }

    static constexpr int kTOTCUO = kPrimeraFigura + kProductos * kFiguras;
    static constexpr int kElementos = kTOTCUO + 1;
};

/// The record that a declaration is made from. The rates of the products follow from `kPrimeraTasa` on.
struct CamposDeNuevaDeclaracion {
    enum Columna : int { kCSDE, kEjercicio, kPeriodo, kPrimeraTasa };

    /// Element of the rate of product `k`, from 1.
    static constexpr int LugarDeTasa(int k) { return kPrimeraTasa + k - 1; }
};

/// The list of declarations of a declarant, rows from 1. The amount is in money.
struct ListadoDeDeclaraciones {
    enum Columna : int { kCSDC, kEjercicio, kPeriodo, kImporte };

    static constexpr std::array kColumnas{
        ColumnaDeAlmacen{kCSDC, "T07_CSDC", TipoDeColumna::Entero32},
        ColumnaDeAlmacen{kEjercicio, "T07_EJERCICIO", TipoDeColumna::Entero16},
        ColumnaDeAlmacen{kPeriodo, "T07_PERIODO", TipoDeColumna::Entero16},
        ColumnaDeAlmacen{kImporte, "T07_TOTCUO / 100", TipoDeColumna::Doble}};
    static_assert(EnOrden(kColumnas));
};

}  // namespace svrZELT
