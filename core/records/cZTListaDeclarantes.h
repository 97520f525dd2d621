#pragma once

#include "core/base/Tabla.h"
#include "core/services/svrZELT/CamposDeDeclarante.h"

/// What the list of declarants is for and what it shows; one instance, `oListaDeclarantes()`.
class cZTListaDeclarantes {
  public:
    static constexpr qint32 kModoAbrir = 0;
    static constexpr qint32 kModoBorrar = 1;

    /// 0 open a declarant, 1 delete one.
    qint32 Modo = 0;
    /// Columns of `vBufferDeclarantes`.
    using Columna = svrZELT::ListadoDeDeclarantes::Columna;
    /// Declarants of the store, rows from 1. Null when there are none.
    Tabla vBufferDeclarantes;

    /// Reads the declarants of the store. The caller keeps them in `vBufferDeclarantes`.
    [[nodiscard]] Tabla ObtenerDeclarantes() const;
};

/// The shared instance.
cZTListaDeclarantes& oListaDeclarantes();
