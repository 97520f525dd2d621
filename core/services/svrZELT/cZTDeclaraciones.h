#pragma once

#include <QString>

#include "core/base/Tabla.h"

namespace svrZELT {

/// Declarations of the user's store. Made for one call; failures of the store are raised (see `Almacen`).
class cZTDeclaraciones {
  public:
    /// Path of the user's store.
    QString mdbmod;

    /// A declaration, elements 0 to 28: 0 `CSDC`, 1 `CSDE` (32-bit), 2 year, 3 quarter (16-bit), then
    /// `SUMEX`, `BASIM`, `TIPIM`, `CUOTA` of products 1 to 6 from element 4 on, and 28 `TOTCUO`: 64-bit
    /// floats, hundredths and, for `TIPIM`, millionths. Zeros for an unknown key.
    [[nodiscard]] Registro CargarDeclaracion(qint32 CSDC) const;

    /// Makes a declaration and gives its key, never used before. Elements 0 `CSDE`, 1 year, 2 quarter, 3 to 8
    /// rates of products 1 to 6 in millionths; its quantities and quotas are 0. Raises 3075 when the
    /// declarant does not exist or has a declaration of that year and quarter, 9 for fewer than nine
    /// elements, and what the conversions raise.
    [[nodiscard]] qint32 GuardarDeclaraciones(const Registro& registro) const;

    /// Deletes the declaration with its annex lines.
    void EliminarDeclaraciones(qint32 CSDC) const;

    /// Declarations of a declarant by year and quarter, the latest last: columns 0 `CSDC` (32-bit), 1 year,
    /// 2 quarter (16-bit), 3 amount to pay in money (64-bit float); rows from 1; Null when there are none.
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
