#pragma once

#include <QString>

#include "core/base/Valor.h"

/// Modes of change tracking: the record that a form works on. Any other mode tracks nothing.
inline constexpr qint16 kModoDeclarante = 0;
inline constexpr qint16 kModoEstablecimiento = 2;

/// Stores `nuevo` in the field of that name (in capitals) of the shared record of the mode and gives the
/// former value back; numbers pass `BC` on the way in and `CB` on the way out.
///
/// A name that the record does not know changes nothing. It gives the new value back in the mode of the
/// declarant, so that it never counts as a change, and an Empty one in the mode of the establishment.
Valor AsignarCampo(qint16 modo, const QString& campo, const Valor& nuevo);
