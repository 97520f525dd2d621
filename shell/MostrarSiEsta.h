#pragma once

#include <QString>

#include "shell/Formularios.h"

/// Tells the user that the installed version does not bring a function.
void AvisarFuncionAusente();

/// Shows a screen, loading it if need be, or tells that the installed version does not bring it. `mostrar`
/// says how: without modal state, or `Formularios::MostrarModal`.
void MostrarSiEsta(const QString& formulario, void (*mostrar)(const QString&) = Formularios::Mostrar);
