#pragma once

#include <QString>
#include <QStringView>

#include "core/base/Valor.h"

/// Formats a number by a mask of "0" (digit always shown), "#" (digit shown if there is one), "," (thousands
/// separated) and "." (decimals follow), such as "##,###,###,##0.00", "#0.000000" or "00000". The mask is
/// written with comma and point whatever the settings; the result has the separators of the settings. The
/// number is taken by its 15 significant decimal digits and halves are rounded away from zero. A value that
/// is Empty or the empty text gives the empty text; text that is not a number comes back as it is; Null
/// gives the empty text.
QString Formatear(const Valor& valor, QStringView mascara);

/// `texto` without the blanks (U+0020) at its right end, the padding of fields of fixed width. Other spaces,
/// such as the no-break one, belong to the text.
QString SinBlancosALaDerecha(const QString& texto);
