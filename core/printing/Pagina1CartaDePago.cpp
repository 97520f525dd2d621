#include "core/printing/ElementosDeImpreso.h"
#include "core/printing/Pagina1.h"

namespace impreso {

namespace {

// Amount, date and key are filled in by hand at the bank.
constexpr auto kCarta = std::to_array<Elemento>({
    Marco{10, 192, 192, 241},
    Imagen{ImagenDeImpreso::Justificante, 12, 196},
    Letra{kLetraDeRotulos, 8, Peso::Normal},
    Raya{28, 192, 28, 241},
    Rotulo{Op::C, 28, 195, 164, u"Ordainketa-gutuna / Carta de pago"},
    Rotulo{Op::L, 30, 238, 0, u"Zigilua eta sinadura / Sello y Firma"},
    Rotulo{Op::L, 78, 238, 0, u"Entitatearen gakoa / Clave Entidad"},
    Rotulo{Op::L, 128, 238, 0, u"Data / Fecha"},
    Rotulo{Op::L, 160, 238, 0, u"Zenbatekoa / Importe"},
});

}  // namespace

void ImprimirCartaDePago() {
    Dibujar(kCarta);
    Usar({kLetraDeDatos, 8, Peso::Negrita});
    // The form strikes year and quarter twice, in the head block both times: docs/reglas.md,
    // devengo-dos-veces.
    ImprimirDevengo();
    Usar({kLetraDeDatos, 8, Peso::Normal});
}

}  // namespace impreso
