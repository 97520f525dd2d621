#pragma once

#include <QString>

#include "core/base/Tabla.h"
#include "core/services/EstadoLeido.h"
#include "core/services/svrZELT/CamposDeDeclarante.h"

namespace svrZELT {

/// Declarants of the user's store. Made for one call; failures of the store are raised (see `Almacen`).
///
/// The record of a declarant has the elements of `CamposDeDeclarante`.
class cZTDeclarante {
  public:
    /// Path of the user's store.
    QString mdbmod;

    /// Leaves the record of the declarant in `buffer`, blanks and zeros for an unknown key, and its state in
    /// `leido`.
    void CargarDeclarante(qint32 CSDE, Registro& buffer, EstadoLeido* leido = nullptr) const;

    /// Stores a record and gives its key. With the key Empty or 0 it is a new declarant, with a key never
    /// used before; otherwise it takes the place of that declarant. Raises 3075 when there is none with the
    /// key, 9 for a record of fewer than 16 elements, and what the conversions raise.
    ///
    /// With the state that it had when it was read in `leido`, a declarant who is no longer as he was then is
    /// left alone, and 3197 raised. After a save `leido` is what now stands there.
    [[nodiscard]] qint32 GuardarDeclarante(const Registro& registro, EstadoLeido* leido = nullptr) const;

    /// Key of a declarant with this NIF, 0 when there is none. Blanks around and case do not count.
    [[nodiscard]] qint32 NifRepetido(const QString& nif) const;

    /// Deletes the declarant with everything of his.
    void EliminarDeclarante(qint32 CSDE) const;

    /// All declarants by NIF: columns of `ListadoDeDeclarantes`; rows from 1; Null when there are none.
    [[nodiscard]] Tabla ObtenerDeclarantes() const;

    /// Stores the record of a line of the exchange file: the value in row i (columns of
    /// `RegistroDeIntercambio`; the names are not read) is that of element i. Texts lose the blanks on their
    /// right; numbers are converted strictly. The key is Empty or 0 for a new declarant. Raises as
    /// `GuardarDeclarante`.
    void ImportarDte(const Tabla& registro) const;
};

}  // namespace svrZELT
