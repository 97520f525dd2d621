#pragma once

#include <QString>

#include "core/base/Tabla.h"

namespace svrZELT {

/// Declarants of the user's store. Made for one call; failures of the store are raised (see `Almacen`).
///
/// Record of a declarant, elements 0 to 17: 0 `CSDE`, 1 `NIF`, 2 `Nombre`, 3 `Siglas`, 4 `Domicilio`,
/// 5 `Numero` (32-bit), 6 `Letra`, 7 `Escal`, 8 `Piso`, 9 `Mano`, 10 `Provin` (16-bit), 11 `CPost` (32-bit),
/// 12 `CMuni` (16-bit), 13 `Munici`, 14 `Telepre` (16-bit), 15 `TelNum` (32-bit); 16 and 17 stay Empty.
class cZTDeclarante {
  public:
    /// Path of the user's store.
    QString mdbmod;

    /// Leaves the record of the declarant in `buffer`; blanks and zeros for an unknown key.
    void CargarDeclarante(qint32 CSDE, Registro& buffer) const;

    /// Stores a record and gives its key. With element 0 Empty or 0 it is a new declarant, with a key never
    /// used before; otherwise it takes the place of that declarant. Raises 3075 when there is none with the
    /// key, 9 for a record of fewer than 16 elements, and what the conversions raise.
    [[nodiscard]] qint32 GuardarDeclarante(const Registro& registro) const;

    /// Key of a declarant with this NIF, 0 when there is none. Blanks around and case do not count.
    [[nodiscard]] qint32 NifRepetido(const QString& nif) const;

    /// Deletes the declarant with everything of his.
    void EliminarDeclarante(qint32 CSDE) const;

    /// All declarants by NIF: columns 0 `CSDE` (32-bit), 1 `NIF`, 2 `Nombre`, 3 `Munici`, 4 province
    /// (16-bit); rows from 1; Null when there are none.
    [[nodiscard]] Tabla ObtenerDeclarantes() const;

    /// Stores the record of a line of the exchange file: `registro(0, i)` is the value of element i (column
    /// 1, the names of the fields, is not read). Texts lose the blanks on their right; numbers are converted
    /// strictly. The key in `registro(0, 0)` is Empty or 0 for a new declarant. Raises as
    /// `GuardarDeclarante`.
    void ImportarDte(const Tabla& registro) const;
};

}  // namespace svrZELT
