#pragma once

#include <QString>

// The automatic copy before the first change of a day. It is made where the channel of the copies is in force
// (see `Copias`); one look at the clock a write, one at the folder a process and day; where it
// could not be made, the next write of the day tries again.

/// Puts the user's store at `ruta` among the automatic copies unless it is there today. Raises what opening
/// the store raises; a copy that cannot be made is kept to be told.
void CopiarAntesDelPrimerCambio(const QString& ruta);

/// Tells the user of a copy that could not be made, once a day.
void AvisarDeLaCopiaDelDia();

/// At the end of the program: puts the store among the automatic copies when it has declarants and no sound
/// copy has any. The copy before the first change of all is empty. A copy that cannot be made here is one
/// that the next end or the next day tries again, so that nothing holds up the end.
void CopiarPrimerosDatos(const QString& ruta);
