#pragma once

#include <QMap>
#include <functional>

#include "forms/runtime/Formulario.h"

/// Gives the text boxes of an entry form their common manners: a box is as wide as its maximum length asks
/// for and selects its whole text when it gets the focus, and `alCambiar` runs on every key release in the
/// form and on every change that the user makes by other means (paste, drop, input method).
void PrepararCajas(Formulario& formulario, const std::function<void()>& alCambiar);

/// Text of each text box of the form, by its name.
[[nodiscard]] QMap<QString, QString> TextosDeCajas(const QWidget& formulario);

/// Puts texts into the boxes of those names. What is longer than a box takes is cut, and a box of digits
/// takes nothing else.
void PonerTextosEnCajas(const QWidget& formulario, const QMap<QString, QString>& textos);
