#pragma once

#include <QtGlobal>

/// Rounds to `decimales` places (0 to 6), halves away from zero, on the binary value as it stands and with
/// no correction of it; above 6 the value comes back untouched. All amounts of the program pass here.
double Redondear(double valor, qint16 decimales);

/// Rounds to a whole number, halves away from zero: a plain decimal rule, not the banker's rounding of the
/// platform.
double RedondearEntero(double valor);
