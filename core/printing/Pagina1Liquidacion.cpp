#include "core/base/Conversiones.h"
#include "core/base/Modelo.h"
#include "core/printing/ElementosDeImpreso.h"
#include "core/printing/Pagina1.h"
#include "core/printing/ValoresDeImpreso.h"
#include "core/records/cZTDeclaraciones.h"

namespace impreso {

namespace {

constexpr auto kCuadro = std::to_array<Elemento>({
    Marco{10, 82, 192, 130},
    Letra{kLetraDeRotulos, 8, Peso::Normal},
    Raya{10, 87, 192, 87},
});

constexpr auto kMarcosDeTabla = std::to_array<Elemento>({
    Marco{13, 95, 44, 119},
    Marco{49, 95, 80, 119},
    Marco{85, 95, 116, 119},
    Marco{121, 95, 152, 119},
    Marco{157, 95, 188, 126},
});
constexpr auto kMarcoDelTotal = std::to_array<Elemento>({Marco{157, 119, 188, 126}});

constexpr std::array kColumnas{13.0, 49.0, 85.0, 121.0, 157.0};
constexpr double kAnchoDeColumna = 31;
constexpr double kPrimeraRaya = 95;
constexpr int kRayas = 7;
constexpr double kAltoDeFila = 4;

constexpr auto kTitulo = std::to_array<Elemento>({
    Letra{kLetraDeRotulos, 9, Peso::Negrita},
    Rotulo{Op::C, 10, 83, 182, u"Likidazioa / Liquidación"},
});

constexpr auto kCabeceraDeTabla = std::to_array<Elemento>({
    Letra{kLetraDeRotulos, 8, Peso::Normal},
    Rotulo{Op::C, 13, 88, 31, u"Produktua"},
    Rotulo{Op::C, 13, 91, 31, u"Producto"},
    Rotulo{Op::C, 49, 88, 31, u"Hornidura eta autokon. salbuetsiak"},
    Rotulo{Op::C, 49, 91, 31, u"Sumi. y autoconsum. exen."},
    Rotulo{Op::C, 85, 88, 31, u"Oinarri ezargarria"},
    Rotulo{Op::C, 85, 91, 31, u"Base imponible"},
    Rotulo{Op::C, 121, 88, 31, u"Zerga tasa"},
    Rotulo{Op::C, 121, 91, 31, u"Tipo impositivo"},
    Rotulo{Op::C, 157, 88, 31, u"Kuota"},
    Rotulo{Op::C, 157, 91, 31, u"Cuota"},
});

constexpr auto kRotuloDelTotal = std::to_array<Elemento>({
    Letra{kLetraDeRotulos, 8, Peso::Negrita},
    Rotulo{Op::L, 110, 121, 0, u"Ordaintzeko kuota, guztira"},
    Rotulo{Op::L, 110, 124, 0, u"Cuota total a ingresar ........"},
});

constexpr auto kFila = std::to_array<CampoDe<int>>({
    {Op::C, 13, 95.5, 31, [](int i) { return QString::number(i); }},
    {Op::R, 79, 97, 0, [](int i) { return ImporteOBlanco(oDeclaraciones().SUMEX(i)); }},
    {Op::R, 115, 97, 0, [](int i) { return ImporteOBlanco(oDeclaraciones().BASIM(i)); }},
    {Op::R, 151, 97, 0, [](int i) { return NumeroATexto(oDeclaraciones().TIPIM(i)); }},
    {Op::R, 187, 97, 0, [](int i) { return Importe(oDeclaraciones().CUOTA(i)); }},
});

constexpr auto kTotal = std::to_array<Elemento>({
    Campo{Op::R, 187, 122, 0, [] { return Importe(oDeclaraciones().TOTCUO()); }},
});

void ImprimirRejilla() {
    for (const double x : kColumnas) {
        for (int raya = 0; raya < kRayas; ++raya) {
            const double y = kPrimeraRaya + kAltoDeFila * raya;
            Linea(x, y, x + kAnchoDeColumna, y);
        }
    }
    Dibujar(kMarcosDeTabla);
}

/// Products without quantities take no row: those that follow move up.
void ImprimirProductos() {
    int fila = 0;
    for (int producto = 1; producto <= kProductos; ++producto) {
        if (oDeclaraciones().SUMEX(producto) != 0.0 || oDeclaraciones().BASIM(producto) != 0.0) {
            EscribirCampos(kFila, kAltoDeFila * fila, producto);
            ++fila;
        }
    }
}

}  // namespace

void ImprimirLiquidacion(TipoDeEjemplar Tipo) {
    const bool conTabla = Tipo != TipoDeEjemplar::Banco;
    Dibujar(kCuadro);
    if (conTabla) {
        ImprimirRejilla();
    } else {
        Dibujar(kMarcoDelTotal);
    }
    Dibujar(kTitulo);
    if (conTabla) {
        Dibujar(kCabeceraDeTabla);
    }
    Dibujar(kRotuloDelTotal);
    Usar({kLetraDeDatos, 8, Peso::Negrita});
    if (conTabla) {
        ImprimirProductos();
    }
    Dibujar(kTotal);
    Usar({kLetraDeDatos, 8, Peso::Normal});
}

}  // namespace impreso
