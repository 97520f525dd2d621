#pragma once

#include <QString>
#include <QStringView>
#include <array>
#include <span>
#include <type_traits>
#include <variant>

#include "core/printing/DispositivoImpresion.h"
#include "core/printing/OperacionesDeImpreso.h"

// What a printed form is made of. The blocks of the forms are tables of these elements in drawing order;
// lengths in millimetres.

namespace impreso {

/// Names of the fonts.
inline constexpr QStringView kLetraDeRotulos = u"MS Sans Serif";
inline constexpr QStringView kLetraDeDatos = u"Arial";

enum class Peso { Normal, Negrita };

/// The font of the texts that follow, in points.
struct Letra {
    QStringView nombre;
    double puntos;
    Peso peso;
};

/// A rectangle between two corners.
struct Marco {
    double x1, y1, x2, y2;
};

/// A line between two points.
struct Raya {
    double x1, y1, x2, y2;
};

struct Imagen {
    ImagenDeImpreso imagen;
    double x, y;
};

/// A fixed text. `ancho` counts for the operation C only.
struct Rotulo {
    Op op;
    double x, y, ancho;
    QStringView texto;
};

/// A text worked out from data at the moment of drawing.
template <class... Datos>
struct CampoDe {
    Op op;
    double x, y, ancho;
    QString (*valor)(Datos...);
};

/// One that finds its data by itself, in the shared instances.
using Campo = CampoDe<>;

using Elemento = std::variant<Letra, Marco, Raya, Imagen, Rotulo, Campo>;

/// Draws the elements in their order.
void Dibujar(std::span<const Elemento> elementos);
/// Has the texts that follow take that font.
void Usar(const Letra& letra);

/// Writes fields of the same data, each `bajada` below its place.
template <class... Datos, std::size_t N>
void EscribirCampos(const std::array<CampoDe<Datos...>, N>& campos, double bajada,
                    const std::type_identity_t<Datos>&... datos) {
    for (const CampoDe<Datos...>& campo : campos) {
        Escribir(campo.op, campo.x, campo.y + bajada, campo.ancho, campo.valor(datos...));
    }
}

}  // namespace impreso
