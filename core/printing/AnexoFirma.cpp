#include "core/printing/Anexo.h"
#include "core/printing/ElementosDeImpreso.h"
#include "core/printing/ValoresDeImpreso.h"

namespace impreso {

namespace {

constexpr auto kFirma = std::to_array<Elemento>({
    Marco{10, 204, 192, 244},
    Letra{kLetraDeRotulos, 8, Peso::Normal},
    Raya{55, 209, 135, 209},
    Rotulo{Op::L, 58, 207, 0, u"Data / Fecha"},
    Rotulo{Op::L, 75, 211, 0, u"Aitortzailearen sinadura"},
    Rotulo{Op::L, 77, 214, 0, u"Firma del Declarante"},
    Letra{kLetraDeDatos, 8, Peso::Negrita},
    Campo{Op::L, 85, 207, 0, FechaEnAmbosIdiomas},
    Letra{kLetraDeDatos, 8, Peso::Normal},
});

}  // namespace

void ImprimirFirmaAnexo() { Dibujar(kFirma); }

}  // namespace impreso
