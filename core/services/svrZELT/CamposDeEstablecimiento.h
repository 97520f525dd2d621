#pragma once

#include "core/store/ColumnaDeAlmacen.h"

namespace svrZELT {

/// The record of an establishment.
struct CamposDeEstablecimiento {
    enum Columna : int { kCSES, kCSDE, kCIM, kDomicilio, kProvin, kCMuni, kMunici };

    static constexpr std::array kColumnas{ColumnaDeAlmacen{kCSES, "T06_CSES", TipoDeColumna::Entero32},
                                          ColumnaDeAlmacen{kCSDE, "T06_CSDE", TipoDeColumna::Entero32},
                                          ColumnaDeAlmacen{kCIM, "T06_CIM", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kDomicilio, "T06_DOMICILIO", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kProvin, "T06_PROVIN", TipoDeColumna::Entero16},
                                          ColumnaDeAlmacen{kCMuni, "T06_CMUNI", TipoDeColumna::Entero16},
                                          ColumnaDeAlmacen{kMunici, "T06_MUNICI", TipoDeColumna::Texto}};
    static_assert(EnOrden(kColumnas));

    static constexpr int kElementos = static_cast<int>(kColumnas.size());
};

/// The list of establishments of a declarant, rows from 1.
struct ListadoDeEstablecimientos {
    enum Columna : int { kCSES, kCIM, kDomicilio, kProvin, kCMuni, kMunici };

    static constexpr std::array kColumnas{ColumnaDeAlmacen{kCSES, "T06_CSES", TipoDeColumna::Entero32},
                                          ColumnaDeAlmacen{kCIM, "T06_CIM", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kDomicilio, "T06_DOMICILIO", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kProvin, "T06_PROVIN", TipoDeColumna::Entero16},
                                          ColumnaDeAlmacen{kCMuni, "T06_CMUNI", TipoDeColumna::Entero16},
                                          ColumnaDeAlmacen{kMunici, "T06_MUNICI", TipoDeColumna::Texto}};
    static_assert(EnOrden(kColumnas));
};

}  // namespace svrZELT
