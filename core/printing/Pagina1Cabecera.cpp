#include "core/printing/ElementosDeImpreso.h"
#include "core/printing/Membrete.h"
#include "core/printing/Pagina1.h"
#include "core/printing/cZTImprimir.h"
#include "core/run/GeneralZT.h"

namespace impreso {

namespace {

constexpr auto kCuadro = std::to_array<Elemento>({
    Marco{10, 14, 192, 42},
    Imagen{ImagenDeImpreso::Logo, 10.5, 14.5},
    Letra{kLetraDeRotulos, 8, Peso::Normal},
    Raya{75, 14, 75, 42},
    Raya{122, 34, 122, 42},
    Raya{170, 14, 170, 42},
    Raya{75, 30, 170, 30},
    Raya{75, 34, 170, 34},
    Raya{75, 38, 170, 38},
});

constexpr auto kTitulos = std::to_array<Elemento>({
    Letra{kLetraDeRotulos, 9, Peso::Negrita},
    Rotulo{Op::C, 70, 15, 100, u"Zenbait Hidrokarburoren Txikizkako"},
    Rotulo{Op::C, 70, 18, 100, u"Salmenten gaineko Zerga"},
    Rotulo{Op::C, 70, 23, 100, u"Impuesto sobre Ventas Minoristas de"},
    Rotulo{Op::C, 70, 26, 100, u"Determinados Hidrocarburos"},
    Rotulo{Op::C, 75, 30.5, 95, u"Sortzapena / Devengo"},
    Letra{kLetraDeRotulos, 8, Peso::Normal},
    Rotulo{Op::T, 76, 35, 0, u"Ekitaldia / Ejercicio"},
    Rotulo{Op::T, 123, 35, 0, u"Epealdia / Periodo"},
    Letra{kLetraDeRotulos, 30, Peso::Negrita},
    Rotulo{Op::C, 170, 22, 22, u"569"},
});

constexpr auto kDevengo = std::to_array<Elemento>({
    Campo{Op::L, 76, 40, 0, [] { return QString::number(oImprimir().Ejercicio); }},
    Campo{Op::L, 123, 40, 0, [] { return DameStringPeriodo(oImprimir().Periodo); }},
});

}  // namespace

void ImprimirCabecera() {
    Dibujar(kCuadro);
    ImprimirMembrete();
    Dibujar(kTitulos);
    Usar({kLetraDeDatos, 8, Peso::Negrita});
    ImprimirDevengo();
    Usar({kLetraDeDatos, 8, Peso::Normal});
}

void ImprimirDevengo() { Dibujar(kDevengo); }

}  // namespace impreso
