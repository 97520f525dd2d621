#pragma once

#include <QSize>

#include "core/printing/DispositivoImpresion.h"

class QPainter;
class QWidget;

// The pictures of the printed forms: the emblem and texts set vertically. They are drawn with lines and
// letters, sharp at any scale; lengths are pixels of 1/96 inch.

/// Natural size of a picture.
[[nodiscard]] QSize TamanoDeImagen(ImagenDeImpreso imagen);

/// Paints a picture with its top left corner at the origin, one unit of the painter being a pixel. Paints no
/// background.
void PintarImagen(QPainter& pintor, ImagenDeImpreso imagen);

/// Makes the hidden container `Picture1` of the main window with the pictures of the printed forms, each a
/// control of its name. Those that no form draws are empty.
void CrearImagenesDeImpreso(QWidget& marco);
