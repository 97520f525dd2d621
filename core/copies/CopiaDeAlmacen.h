#pragma once

#include <QString>
#include <optional>

#include "core/copies/VolcadoDeAlmacen.h"

/// Backs the user's store at `almacen` up under the name `destino`, in the place of the file that bears it:
/// made in a temporary file beside it, dated, checked, on disk, and only then named; its checksum beside it.
/// Cut short at any moment it leaves the former copy or the new one, whole. Raises 76 for a missing folder,
/// 75 or the failure of the store otherwise, with everything as it was.
void CopiarAlmacen(const QString& almacen, const QString& destino, const std::optional<FechaDeCopia>& fecha,
                   const AvanceDeCopia& avance);
