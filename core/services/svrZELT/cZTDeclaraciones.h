#pragma once

#include <QString>

#include "core/base/Tabla.h"
#include "core/services/svrZELT/CamposDeDeclaracion.h"

namespace svrZELT {

/// Declarations of the user's store. Made for one call; failures of the store are raised (see `Almacen`).
class cZTDeclaraciones {
  public:
    /// Path of the user's store.
    QString mdbmod;

    /// A declaration, elements of `CamposDeDeclaracion`; figures are 64-bit floats, in hundredths and, for
    /// `TIPIM`, millionths. Zeros for an unknown key. `lineas` takes its annex lines as they stood at the
    /// same moment, as `cZTAnexos::CargarAnexos` gives them.
    [[nodiscard]] Registro CargarDeclaracion(qint32 CSDC, Tabla* lineas = nullptr) const;

    /// Makes a declaration and gives its key, never used before, from the elements of
    /// `CamposDeNuevaDeclaracion`, rates in millionths; its quantities and quotas are 0. Raises 3075 when the
    /// declarant does not exist or has a declaration of that year and quarter, 9 for fewer than nine
    /// elements, and what the conversions raise.
    [[nodiscard]] qint32 GuardarDeclaraciones(const Registro& registro) const;

    /// Deletes the declaration with its annex lines.
    void EliminarDeclaraciones(qint32 CSDC) const;

    /// Declarations of a declarant by year and quarter, the latest last: columns of `ListadoDeDeclaraciones`;
    /// rows from 1; Null when there are none.
    [[nodiscard]] Tabla ObtenerDeclaraciones(qint32 CSDE) const;

    /// Number of declarations of a declarant.
    [[nodiscard]] qint16 NumeroDeclaraciones(qint32 CSDE) const;

    /// Whether the declarant has a declaration of that year and quarter.
    [[nodiscard]] bool DecDuplicadas(qint32 CSDE, qint16 Ejercicio, qint16 Periodo) const;

    /// Whether the declarant has declarations. False for an unknown key.
    [[nodiscard]] bool TieneDeclaraciones(qint32 CSDE) const;

    /// Whether the declarant has establishments. False for an unknown key.
    [[nodiscard]] bool TieneEstablecimientos(qint32 CSDE) const;
};

}  // namespace svrZELT
