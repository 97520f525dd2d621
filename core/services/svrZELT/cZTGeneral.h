#pragma once

#include <QString>

#include "core/base/Tabla.h"
#include "core/services/svrZELT/CamposDeDeclarante.h"

namespace svrZELT {

/// General questions to the user's store. Made for one call, like every server; failures of the store are
/// raised as the run-time's errors (see `Almacen`).
class cZTGeneral {
  public:
    /// Path of the user's store.
    QString mdbmod;

    /// The declarants, those last worked on first (latest write to the declarant, or to an establishment or
    /// declaration of his): columns of `ListadoDeRecientes`; rows from 1; Null when there are none.
    [[nodiscard]] Tabla ExisteDec() const;
};

}  // namespace svrZELT
