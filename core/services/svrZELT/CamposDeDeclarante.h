#pragma once

#include "core/store/ColumnaDeAlmacen.h"

namespace svrZELT {

/// The record of a declarant. It has two elements more than columns, which stay Empty.
struct CamposDeDeclarante {
    enum Columna : int {
        kCSDE,
        kNIF,
        kNombre,
        kSiglas,
        kDomicilio,
        kNumero,
        kLetra,
        kEscal,
        kPiso,
        kMano,
        kProvin,
        kCPost,
        kCMuni,
        kMunici,
        kTelepre,
        kTelNum
    };

    static constexpr std::array kColumnas{ColumnaDeAlmacen{kCSDE, "T05_CSDE", TipoDeColumna::Entero32},
                                          ColumnaDeAlmacen{kNIF, "T05_NIF", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kNombre, "T05_NOMBRE", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kSiglas, "T05_SIGLAS", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kDomicilio, "T05_DOMICILIO", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kNumero, "T05_NUMERO", TipoDeColumna::Entero32},
                                          ColumnaDeAlmacen{kLetra, "T05_LETRA", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kEscal, "T05_ESCAL", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kPiso, "T05_PISO", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kMano, "T05_MANO", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kProvin, "T05_PROVIN", TipoDeColumna::Entero16},
                                          ColumnaDeAlmacen{kCPost, "T05_CPOST", TipoDeColumna::Entero32},
                                          ColumnaDeAlmacen{kCMuni, "T05_CMUNI", TipoDeColumna::Entero16},
                                          ColumnaDeAlmacen{kMunici, "T05_MUNICI", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kTelepre, "T05_TELEPRE", TipoDeColumna::Entero16},
                                          ColumnaDeAlmacen{kTelNum, "T05_TELNUM", TipoDeColumna::Entero32}};
    static_assert(EnOrden(kColumnas));

    static constexpr int kElementos = static_cast<int>(kColumnas.size()) + 2;
};

/// The record of a line of the exchange file: rows as the elements of `CamposDeDeclarante`.
struct RegistroDeIntercambio {
    enum Columna : int { kValor, kNombre };
};

/// The list of declarants, rows from 1.
struct ListadoDeDeclarantes {
    enum Columna : int { kCSDE, kNIF, kNombre, kMunici, kProvin };

    static constexpr std::array kColumnas{ColumnaDeAlmacen{kCSDE, "T05_CSDE", TipoDeColumna::Entero32},
                                          ColumnaDeAlmacen{kNIF, "T05_NIF", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kNombre, "T05_NOMBRE", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kMunici, "T05_MUNICI", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kProvin, "T05_PROVIN", TipoDeColumna::Entero16}};
    static_assert(EnOrden(kColumnas));
};

/// The declarants last worked on, rows from 1.
struct ListadoDeRecientes {
    enum Columna : int { kCSDE, kNIF, kNombre };

    static constexpr std::array kColumnas{ColumnaDeAlmacen{kCSDE, "T05_CSDE", TipoDeColumna::Entero32},
                                          ColumnaDeAlmacen{kNIF, "T05_NIF", TipoDeColumna::Texto},
                                          ColumnaDeAlmacen{kNombre, "T05_NOMBRE", TipoDeColumna::Texto}};
    static_assert(EnOrden(kColumnas));
};

}  // namespace svrZELT
