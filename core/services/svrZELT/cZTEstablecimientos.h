#pragma once

#include <QString>

#include "core/base/Tabla.h"
#include "core/services/EstadoLeido.h"
#include "core/services/svrZELT/CamposDeEstablecimiento.h"

namespace svrZELT {

/// Establishments of the user's store. Made for one call; failures of the store are raised (see `Almacen`).
///
/// The record of an establishment has the elements of `CamposDeEstablecimiento`.
class cZTEstablecimientos {
  public:
    /// Path of the user's store.
    QString mdbmod;

    /// Establishments of a declarant by CIM: columns of `ListadoDeEstablecimientos`; rows from 1; Null when
    /// there are none.
    [[nodiscard]] Tabla ObtenerEstablecimientos(qint32 CSDE) const;

    /// Leaves the record of the establishment in `buffer`, blanks and zeros for an unknown key, and its state
    /// in `leido`.
    void CargarEstablecimiento(qint32 CSES, Registro& buffer, EstadoLeido* leido = nullptr) const;

    /// Stores a record and gives its key. With the key Empty or 0 it is a new establishment, with a key
    /// never used before. Raises 3075 when the establishment or its declarant does not exist, 9 for a record
    /// of fewer than 7 elements, and what the conversions raise.
    ///
    /// With the state that it had when it was read in `leido`, an establishment that is no longer as it was
    /// then is left alone, and 3197 raised. After a save `leido` is what now stands there.
    qint32 GuardaEstablecimiento(const Registro& registro, EstadoLeido* leido = nullptr) const;

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
