#include "core/printing/ElementosDeImpreso.h"
#include "core/printing/Pagina1.h"
#include "core/printing/ValoresDeImpreso.h"

namespace impreso {

namespace {

constexpr auto kFirma = std::to_array<Elemento>({
    Marco{10, 150, 192, 190},
    Letra{kLetraDeRotulos, 8, Peso::Normal},
    Raya{55, 155, 135, 155},
    Rotulo{Op::L, 58, 153, 0, u"Data / Fecha"},
    Rotulo{Op::L, 73, 157, 0, u"Subjektu pasiboaren sinadura"},
    Rotulo{Op::L, 77, 160, 0, u"Firma del Sujeto Pasivo"},
    Letra{kLetraDeDatos, 8, Peso::Negrita},
    Campo{Op::L, 85, 153, 0, FechaEnAmbosIdiomas},
    Letra{kLetraDeDatos, 8, Peso::Normal},
});

}  // namespace

void ImprimirFirma() { Dibujar(kFirma); }

}  // namespace impreso
