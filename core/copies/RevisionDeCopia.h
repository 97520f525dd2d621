#pragma once

#include <QString>

#include "core/copies/CanalCopias.h"

/// Reads the file at `ruta`, a user's store that nobody changes, whole, and tells what it holds. Nothing is
/// written, no lock is taken and no journal beside the file looked at. Raises what `Almacen` raises for a
/// missing, foreign, damaged or newer file, and 3049 for one that is not sound.
///
/// The day is that which the last backup noted in it, otherwise that of the file.
ResumenDeCopia RevisarAlmacen(const QString& ruta);

/// The same for a copy that the user or the list of automatic copies names: its checksum, when it has one
/// beside it, has to fit. A file that is none of this program's is told by its first bytes, whatever its
/// size.
ResumenDeCopia RevisarCopia(const QString& ruta);
