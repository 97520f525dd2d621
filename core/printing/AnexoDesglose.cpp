#include <algorithm>

#include "core/base/Fraccion.h"
#include "core/printing/Anexo.h"
#include "core/printing/DatosDeAnexo.h"
#include "core/printing/ElementosDeImpreso.h"
#include "core/printing/ValoresDeImpreso.h"

namespace impreso {

namespace {

constexpr auto kCuadro = std::to_array<Elemento>({
    Marco{10, 76, 192, 202},
    Letra{kLetraDeRotulos, 7, Peso::Normal},
    Raya{10, 86, 192, 86},
    Raya{68, 86, 68, 196},
    Raya{76, 86, 76, 196},
    Raya{144, 86, 144, 202},
    Raya{76, 94, 144, 94},
});

constexpr double kIzquierda = 10;
constexpr double kDerecha = 192;
constexpr double kPrimeraRaya = 100;
constexpr int kFilasPorPagina = 24;
constexpr double kAltoDeFila = 4;

constexpr auto kRotulos = std::to_array<Elemento>({
    Letra{kLetraDeRotulos, 7, Peso::Negrita},
    Rotulo{Op::C, 10, 77, 182, u"KUOTEN ETA HORNIKUNTZA SALBUETSIEN BANAKETA"},
    Rotulo{Op::C, 10, 81, 182, u"DESGLOSE DE CUOTAS Y SUMINISTROS EXENTOS"},
    Rotulo{Op::C, 10, 87, 58, u"TXIKIZKAKOEN"},
    Rotulo{Op::C, 10, 90, 58, u"IDENTIFIKAZIO KODEA"},
    Rotulo{Op::C, 10, 94, 58, u"CODIGO IDENTIFICACION"},
    Rotulo{Op::C, 10, 97, 58, u"MINORISTA"},
    Rotulo{Op::C, 69, 92, 8, u"P"},
    Rotulo{Op::C, 80, 87, 58, u"HORNIKUNTZA ETA AUTOKONTSUMO SALBUETSIAK"},
    Rotulo{Op::C, 80, 90, 58, u"SUMINISTROS Y AUTOCONSUMOS EXENTOS"},
    Rotulo{Op::C, 77, 94, 58, u"Litro edo tona milakoak"},
    Rotulo{Op::C, 77, 97, 58, u"Miles de litros o toneladas"},
    Rotulo{Op::C, 135, 90, 58, u"KUOTA LIKIDOA"},
    Rotulo{Op::C, 135, 94, 58, u"CUOTA LIQUIDA"},
    Rotulo{Op::L, 120, 197, 0, u"Guztira"},
    Rotulo{Op::L, 120, 200, 0, u"Total.................."},
});

using Columna = DatosDeAnexo::Columna;

/// One line of the declaration.
struct Renglon {
    const Tabla& buffer;
    int fila;

    [[nodiscard]] const Valor& operator()(Columna columna) const { return buffer(columna, fila); }
    [[nodiscard]] Centesimas En(Columna columna) const { return Centesimas((*this)(columna).aDoble()); }
};

constexpr auto kFila = std::to_array<CampoDe<const Renglon&>>({
    {Op::C, 10, 100.5, 58, [](const Renglon& l) { return l(Columna::kCIM).aTexto(); }},
    {Op::C, 69, 100.5, 8, [](const Renglon& l) { return l(Columna::kProducto).aTexto(); }},
    {Op::R, 110, 102, 0, [](const Renglon& l) { return ImporteOBlanco(l.En(Columna::kSUMEX).Publico()); }},
    {Op::R, 170, 102, 0, [](const Renglon& l) { return Importe(l.En(Columna::kCUOTA).Publico()); }},
});

constexpr auto kTotal = std::to_array<CampoDe<double>>({
    {Op::R, 170, 200, 0, Importe},
});

void ImprimirRayas() {
    for (int raya = 0; raya <= kFilasPorPagina; ++raya) {
        const double y = kPrimeraRaya + kAltoDeFila * raya;
        Linea(kIzquierda, y, kDerecha, y);
    }
}

}  // namespace

void ImprimirDesgloseAnexo(const Tabla& vBufferAnexo) {
    Dibujar(kCuadro);
    ImprimirRayas();
    Dibujar(kRotulos);
    Usar({kLetraDeDatos, 7, Peso::Negrita});
    // Page 1 of the document is the return, so the lines begin on its page 2.
    const int anteriores = (Impresora().NumeroDePagina() - 2) * kFilasPorPagina;
    const int ultima = std::min(anteriores + kFilasPorPagina, vBufferAnexo.UltimaFila());
    Centesimas suma;
    for (int fila = anteriores + 1; fila <= ultima; ++fila) {
        const Renglon renglon{vBufferAnexo, fila};
        EscribirCampos(kFila, kAltoDeFila * (fila - anteriores - 1), renglon);
        suma += renglon.En(Columna::kCUOTA);
    }
    EscribirCampos(kTotal, 0, suma.Publico());
    Usar({kLetraDeDatos, 7, Peso::Normal});
}

}  // namespace impreso
