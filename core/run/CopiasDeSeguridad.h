#pragma once

#include <QtGlobal>

// The commands of the main window that back the user's store up and bring it back. `ventana` is the handle of
// that window. They have no handler; the tool tells the user what comes of it.

/// Has the tool make a backup.
void CrearCopiaDeSeguridad(qint32 ventana);

/// At the end of the program: has the first data copied that no automatic copy holds.
void CopiarPrimerosDatos();

/// Has the tool bring a backup back. True when the user's store has been replaced.
[[nodiscard]] bool RestaurarCopiaDeSeguridad(qint32 ventana);
