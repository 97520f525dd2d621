#pragma once

#include <functional>

#include "forms/runtime/Formulario.h"

/// Gives the text boxes of an entry form their common manners: a box is as wide as its maximum length asks
/// for and selects its whole text when it gets the focus, and `alCambiar` runs on every key release in the
/// form and on every change that the user makes by other means (paste, drop, input method).
void PrepararCajas(Formulario& formulario, const std::function<void()>& alCambiar);
