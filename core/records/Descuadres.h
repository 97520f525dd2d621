#pragma once

#include <QString>
#include <vector>

#include "core/base/Tabla.h"

// The figures of a return guard themselves: the store works every quota and every sum out at each save, so
// that what is read adds up unless somebody or something else has been at the file.

/// A stored figure that is not what those under it make. Both values are on the public scale.
struct Descuadre {
    /// Which figure, in Castellano.
    QString donde;
    double guardado = 0.0;
    double calculado = 0.0;
};

/// What does not add up in a declaration and its lines, as the server gives them: the quota of a line against
/// base times rate, the figures of a product against the sums of its lines, and the total against the quotas.
/// Never raises.
[[nodiscard]] std::vector<Descuadre> DescuadresDe(const Registro& declaracion, const Tabla& lineas);

/// Path of the log of what did not add up, beside the stores.
[[nodiscard]] QString RutaDeDescuadres();

/// Writes a line for each into the log, which is for the user alone: moment, declaration (`nombre`), figure
/// and both values. The same one of the same declaration is written once a run. Best effort.
void AnotarDescuadres(const QString& nombre, const std::vector<Descuadre>& descuadres);
