#pragma once

#include <QString>

#include "core/base/FicheroProvisional.h"

/// Makes a folder where it is missing, and those above it, whose names are on disk on return. The folder
/// itself is for those whom `lectores` names; those above it, where they are made too, are for those whom the
/// settings of the session name. One that is there stays as it is. False when it cannot be made.
[[nodiscard]] bool CrearCarpeta(const QString& ruta, Lectores lectores = Lectores::LosHabituales);

/// Leaves a folder to its owner alone, as far as the file system can.
void CerrarCarpeta(const QString& ruta);
