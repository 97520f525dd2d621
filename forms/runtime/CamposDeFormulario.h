#pragma once

#include <QColor>
#include <functional>

#include "core/records/AsignarCampo.h"

class QLineEdit;
class QWidget;

/// Backgrounds of entry boxes: open to the keyboard, and filled in by the program.
inline constexpr QRgb kFondoBlanco = 0xFFFFFFFF;
inline constexpr QRgb kFondoAmarillo = 0xFFFFFFC0;

/// Gives a box a fixed background and, since that no longer follows the palette, a dark text with it.
void PonerFondo(QLineEdit& caja, QRgb fondo);

/// Takes every box of the form ("txt...", its field name in the property `Tag`) over into the record of the
/// mode and marks the record as changed when a text differs from the former value; boxes "cn..." are
/// compared with the former value of the text box before them. In the mode of the declarant
/// `presentaBotones` runs at each difference.
void CompararCampos(qint16 modo, const QWidget& formulario, const std::function<void()>& presentaBotones);

/// Lets the municipality be chosen by code in the province of the authority (20) and typed in any other, on
/// the form's boxes `txtProvin`, `txtMuni`, `txtNombreMunicipio` and its picture `picMuni`. Outside province
/// 20 it also clears the code of the municipality in `oDeclarante()`, whichever form it is.
void ActivarMunicipio(const QWidget& formulario);
