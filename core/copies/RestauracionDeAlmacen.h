#pragma once

#include <QDateTime>
#include <QString>

#include "core/copies/CanalCopias.h"

/// Puts the copy at `copia` in the place of the user's store at `almacen`, in one step: whoever looks, after
/// a crash too, finds the one or the other, whole.
///
/// The copy is first brought beside the store and judged there: checksum, identity, version, integrity. A
/// refused one raises and leaves everything as it was. Then the store is held, so that no write of another
/// program is in flight; what it holds goes among the automatic copies, or, when it is no sound store, the
/// file itself under the name of the store and ".N.rechazado" beside it; and the copy takes its place. Kept
/// connections are closed.
///
/// Raises `ErrorDeCopia` for a sum that does not fit and for the store itself in the place of the copy, 3260
/// while another program uses the store, and the failures of the store otherwise.
void RestaurarAlmacen(const QString& copia, const QString& almacen, const QDateTime& ahora,
                      const AvanceDeCopia& avance);
