#pragma once

#include "core/base/Tabla.h"
#include "core/services/svrZELT/CamposDeAnexo.h"

namespace impreso {

/// Lines of the declaration by establishment and product, as one copy prints them.
struct DatosDeAnexo {
    /// Columns of `vBufferAnexo`. Quantities and quotas are in hundredths.
    using Columna = svrZELT::ListadoDeImpresion::Columna;

    /// Result of `CargarEstablecimientos`: (column, row), rows from 1; Null when there are none.
    Tabla vBufferAnexo;
    /// Number of different establishments.
    qint16 NumEstablecimientos = 0;
};

/// Loads the lines of the open declaration. They come grouped by establishment: each CIM that differs from
/// that of the row before counts as another one. Raises what the store raises.
DatosDeAnexo CargarDatosDeAnexo();

}  // namespace impreso
