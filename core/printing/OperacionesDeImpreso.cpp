#include "core/printing/OperacionesDeImpreso.h"

#include "core/printing/DispositivoImpresion.h"

namespace impreso {

namespace {

/// How much of a text's height lies above the Y of the operations L and R.
constexpr double kParteSobreLaLinea = 0.35;

double Subida(const QString& texto) { return kParteSobreLaLinea * Impresora().AltoDeTexto(texto); }

}  // namespace

void TextoDesdeEsquina(double x, double y, const QString& texto) {
    Impresora().SituarPluma(x, y);
    Impresora().Escribir(texto);
}

void TextoCentrado(double x, double y, double ancho, const QString& texto) {
    TextoDesdeEsquina(x + ancho / 2 - Impresora().AnchoDeTexto(texto) / 2, y, texto);
}

void TextoIzquierda(double x, double y, const QString& texto) {
    TextoDesdeEsquina(x, y - Subida(texto), texto);
}

void TextoDerecha(double x, double y, const QString& texto) {
    TextoDesdeEsquina(x - Impresora().AnchoDeTexto(texto), y - Subida(texto), texto);
}

void Escribir(Op op, double x, double y, double ancho, const QString& texto) {
    switch (op) {
        case Op::T:
            return TextoDesdeEsquina(x, y, texto);
        case Op::C:
            return TextoCentrado(x, y, ancho, texto);
        case Op::L:
            return TextoIzquierda(x, y, texto);
        case Op::R:
            return TextoDerecha(x, y, texto);
    }
}

void Linea(double x1, double y1, double x2, double y2) { Impresora().Linea(x1, y1, x2, y2); }

void Recuadro(double x1, double y1, double x2, double y2) {
    Impresora().FijarRellenoBlanco();
    Impresora().Rectangulo(x1, y1, x2, y2);
}

}  // namespace impreso
