#pragma once

class QWidget;

/// Puts on a screen of the open declaration what the summary and the entry of annexes have in common: who
/// files it, its year and quarter, the headings of the four figures and the names of the products. Product 6
/// has no name in the years that do not know it. The labels are found by their names.
void PonerTextosDeDeclaracion(const QWidget& formulario);

/// Widths in pixels that the widest figure of quantities and money, and the widest rate, take on a control,
/// with some air.
[[nodiscard]] int AnchoDeImporte(const QWidget& control);
[[nodiscard]] int AnchoDeTipo(const QWidget& control);
