#include "core/printing/ElementosDeImpreso.h"

namespace impreso {

namespace {

void DibujarUno(const Letra& letra) { Usar(letra); }
void DibujarUno(const Marco& m) { Recuadro(m.x1, m.y1, m.x2, m.y2); }
void DibujarUno(const Raya& r) { Linea(r.x1, r.y1, r.x2, r.y2); }
void DibujarUno(const Imagen& i) { Impresora().PintarImagen(i.imagen, i.x, i.y); }
void DibujarUno(const Rotulo& r) { Escribir(r.op, r.x, r.y, r.ancho, r.texto.toString()); }
void DibujarUno(const Campo& c) { Escribir(c.op, c.x, c.y, c.ancho, c.valor()); }

}  // namespace

void Usar(const Letra& letra) {
    Impresora().FijarNombreDeLetra(letra.nombre.toString());
    Impresora().FijarTamanoDeLetra(letra.puntos);
    Impresora().FijarNegrita(letra.peso == Peso::Negrita);
}

void Dibujar(std::span<const Elemento> elementos) {
    for (const Elemento& elemento : elementos) {
        std::visit([](const auto& uno) { DibujarUno(uno); }, elemento);
    }
}

}  // namespace impreso
