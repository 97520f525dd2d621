#pragma once

#include <QString>

// Drawing operations of the printed forms, on the device in force. Lengths in millimetres from the top left
// corner of the paper. Texts take the font that the device has.

namespace impreso {

/// Where a text goes: the operations below by their letter.
enum class Op { T, C, L, R };

/// T: top left of the text at (x, y).
void TextoDesdeEsquina(double x, double y, const QString& texto);
/// C: top of the text at y, its middle at that of the stretch of width `ancho` that begins at x.
void TextoCentrado(double x, double y, double ancho, const QString& texto);
/// L: the text begins at x; y is 35 % of its height below its top.
void TextoIzquierda(double x, double y, const QString& texto);
/// R: the text ends at x; y is 35 % of its height below its top.
void TextoDerecha(double x, double y, const QString& texto);
/// The operation of that letter; only C reads `ancho`.
void Escribir(Op op, double x, double y, double ancho, const QString& texto);

/// A black line.
void Linea(double x1, double y1, double x2, double y2);
/// A black outline, with white set as the fill colour; what is there shows through it.
void Recuadro(double x1, double y1, double x2, double y2);

}  // namespace impreso
