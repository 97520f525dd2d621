#include "core/printing/ElementosDeImpreso.h"
#include "core/printing/Pagina1.h"
#include "core/records/cZTDeclaraciones.h"

namespace impreso {

namespace {

constexpr auto kRotulos = std::to_array<Elemento>({
    Marco{10, 132, 192, 148},
    Letra{kLetraDeRotulos, 8, Peso::Normal},
    Raya{40, 132, 40, 148},
    Marco{182, 137, 188, 142},
    Letra{kLetraDeRotulos, 8, Peso::Negrita},
    Rotulo{Op::C, 10, 136, 31, u"Ordainketarik gabe"},
    Rotulo{Op::C, 10, 140, 31, u"Sin ingreso"},
    Letra{kLetraDeRotulos, 8, Peso::Normal},
    Rotulo{Op::L, 42, 134, 0,
           u"Zerga honen likidazioak ZERO KUOTA LIKIDOA eman badu zergaldi eta ekitaldian,"},
    Rotulo{Op::L, 42, 137, 0, u"\"X\" bat jarri behar da ondoko laukian:"},
    Rotulo{
        Op::L, 42, 142, 0,
        u"Si la liquidación correspondiente a este tributo, por el ejercicio y periodo considerado resulta "
        u"CON CUOTA "},
    Rotulo{Op::L, 42, 145, 0, u"LIQUIDA CERO marque con una \"X\" el recuadro al efecto:"},
});

constexpr auto kMarca = std::to_array<Elemento>({Rotulo{Op::L, 184, 139, 0, u"X"}});

}  // namespace

void ImprimirSinIngreso() {
    Dibujar(kRotulos);
    Usar({kLetraDeDatos, 8, Peso::Negrita});
    if (oDeclaraciones().TOTCUO() == 0.0) {
        Dibujar(kMarca);
    }
    Usar({kLetraDeDatos, 8, Peso::Normal});
}

}  // namespace impreso
