#pragma once

#include <QWidget>

/// Pixels of a length in twips (1/1440 inch, 15 to a pixel at 96 dpi), scaled with the resolution of the
/// screen and with the type size of `control`: a width that was given for 8.25 point type holds as many
/// letters in a larger one.
[[nodiscard]] int TwipsAPixeles(int twips, const QWidget& control);

/// Twips of a length in pixels, on the scale of `TwipsAPixeles`.
[[nodiscard]] int PixelesATwips(int pixeles, const QWidget& control);

/// Places a form on the main window "MDIZT": centred, but higher by the height of the tool bar `tlbMdi`, and
/// never above or left of the area of the working forms. `ancho` and `alto`, in twips, are the form's size;
/// 0 leaves it as it is. A form that is not on the screen yet takes its place at the moment it appears.
/// Without a main window the form stays where the window system puts it.
void PosicionaFormulario(QWidget& form, int ancho, int alto);
