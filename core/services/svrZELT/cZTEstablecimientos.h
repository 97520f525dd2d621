#pragma once

#include <QString>

#include "core/base/Tabla.h"

namespace svrZELT {

/// Establishments of the user's store. Made for one call; failures of the store are raised (see `Almacen`).
///
/// Record of an establishment, elements 0 to 6: 0 `CSES`, 1 `CSDE`, 2 `CIM`, 3 `Domicilio`, 4 `Provin`
/// (16-bit), 5 `CMuni` (16-bit), 6 `Munici`.
class cZTEstablecimientos {
  public:
    /// Path of the user's store.
    QString mdbmod;

    /// Establishments of a declarant by CIM: columns 0 `CSES` (32-bit), 1 `CIM`, 2 `Domicilio`, 3 province
    /// (16-bit), 4 municipality (16-bit), 5 name of the municipality; rows from 1; Null when there are none.
    [[nodiscard]] Tabla ObtenerEstablecimientos(qint32 CSDE) const;

    /// Leaves the record of the establishment in `buffer`; blanks and zeros for an unknown key.
    void CargarEstablecimiento(qint32 CSES, Registro& buffer) const;

    /// Stores a record and gives its key. With element 0 Empty or 0 it is a new establishment, with a key
    /// never used before. Raises 3075 when the establishment or its declarant does not exist, 9 for a record
    /// of fewer than 7 elements, and what the conversions raise.
    qint32 GuardaEstablecimiento(const Registro& registro) const;

    /// Deletes the establishment. Annex lines of its, which the callers ask for first, go with it, and the
    /// sums of their declarations follow.
    void EliminarEstablecimiento(qint32 CSES) const;

    /// Number of declarations of a declarant.
    [[nodiscard]] qint32 NumeroDeclaraciones(qint32 CSDE) const;

    /// Whether any establishment of the store, of whichever declarant, has this CIM. Blanks around and case
    /// do not count.
    [[nodiscard]] bool CIMRepetido(const QString& CIM) const;

    /// True when the establishment has no annex lines.
    [[nodiscard]] bool EstablecimientosSinAnexos(qint32 lngNumCSES) const;
};

}  // namespace svrZELT
