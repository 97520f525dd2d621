#pragma once

#include <QString>

// The automatic copy before the first change of a day. It is made where the channel of the copies is in force
// (see `Copias`); one look at the clock a write, one at the folder a process and day.

/// Puts the user's store at `ruta` among the automatic copies unless it is there today. Raises what opening
/// the store raises; a copy that cannot be made is kept to be told.
void CopiarAntesDelPrimerCambio(const QString& ruta);

/// Tells the user of a copy that could not be made, once.
void AvisarDeLaCopiaDelDia();
