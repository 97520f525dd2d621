#pragma once

#include "core/store/ColumnaDeAlmacen.h"

namespace svrZELT {

/// The figures of a product, in the order in which every buffer has them: hundredths, rates in millionths.
struct Figura {
    enum Orden : int { kSUMEX, kBASIM, kTIPIM, kCUOTA };
};
inline constexpr int kFiguras = Figura::kCUOTA + 1;

/// The annex lines of a declaration, rows from 1.
struct CamposDeAnexo {
    enum Columna : int { kCSAN, kCSDC, kCSES, kProducto, kSUMEX, kBASIM, kTIPIM, kCUOTA };

    static constexpr std::array kColumnas{
        ColumnaDeAlmacen{kCSAN, "T08_CSAN", TipoDeColumna::Entero32},
        ColumnaDeAlmacen{kCSDC, "T08_CSDC", TipoDeColumna::Entero32},
        ColumnaDeAlmacen{kCSES, "T08_CSES", TipoDeColumna::Entero32},
        ColumnaDeAlmacen{kProducto, "T08_PRODUCTO", TipoDeColumna::Entero16},
        ColumnaDeAlmacen{kSUMEX, "T08_SUMEX", TipoDeColumna::Doble},
        ColumnaDeAlmacen{kBASIM, "T08_BASIM", TipoDeColumna::Doble},
        ColumnaDeAlmacen{kTIPIM, "T08_TIPIM", TipoDeColumna::Doble},
        ColumnaDeAlmacen{kCUOTA, "T08_CUOTA", TipoDeColumna::Doble}};
    static_assert(EnOrden(kColumnas));

    static constexpr int kUltimaColumna = static_cast<int>(kColumnas.size()) - 1;

    /// Column of a figure.
    static constexpr int Lugar(int figura) { return kSUMEX + figura; }
};

/// The annex lines as they are printed, with their establishment, rows from 1.
struct ListadoDeImpresion {
    enum Columna : int { kCIM, kDomicilio, kProvin, kMunici, kProducto, kSUMEX, kBASIM, kTIPIM, kCUOTA };

    static constexpr std::array kColumnas{
        ColumnaDeAlmacen{kCIM, "T06_CIM", TipoDeColumna::Texto},
        ColumnaDeAlmacen{kDomicilio, "T06_DOMICILIO", TipoDeColumna::Texto},
        ColumnaDeAlmacen{kProvin, "T06_PROVIN", TipoDeColumna::Entero16},
        ColumnaDeAlmacen{kMunici, "T06_MUNICI", TipoDeColumna::Texto},
        ColumnaDeAlmacen{kProducto, "T08_PRODUCTO", TipoDeColumna::Entero16},
        ColumnaDeAlmacen{kSUMEX, "T08_SUMEX", TipoDeColumna::Doble},
        ColumnaDeAlmacen{kBASIM, "T08_BASIM", TipoDeColumna::Doble},
        ColumnaDeAlmacen{kTIPIM, "T08_TIPIM", TipoDeColumna::Doble},
        ColumnaDeAlmacen{kCUOTA, "T08_CUOTA", TipoDeColumna::Doble}};
    static_assert(EnOrden(kColumnas));
};

}  // namespace svrZELT
