#pragma once

#include <QString>
#include <QStringList>

#include "core/base/Tabla.h"

// The faults of a record as the user reads them. A list of faults is a buffer with the group number in
// column 0 and the code in column 1, rows from 0; groups put the faults in the order of the screen, whatever
// the order of the checks was. While element (0, 0) is Empty there are no faults.

/// The text of a fault code, 0 to 18, in the language in force; empty for any other code.
QString TextoDeCodigo(int codigo);

/// Cuts a text at its first blank from position 50 on and, if there is such a cut, at its first blank from
/// position 100 on (positions count from 1): one to three lines, blanks at their ends removed. With no blank
/// from 50 to 99 both cuts fall together, and the line between them is empty.
QStringList CortarEnLineas(const QString& texto);

/// The lines of the list of faults: group after group, each fault with its running number from 1 and its
/// text cut by `CortarEnLineas`. Raises 13 for a group or code that is not a number.
QStringList LineasDeErrores(const Tabla& errores);
