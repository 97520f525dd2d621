#include "core/printing/Anexo.h"
#include "core/printing/ElementosDeImpreso.h"
#include "core/printing/Membrete.h"

namespace impreso {

namespace {

constexpr auto kCuadro = std::to_array<Elemento>({
    Marco{10, 14, 192, 42},
    Imagen{ImagenDeImpreso::Logo, 10.5, 14.5},
    Raya{75, 14, 75, 42},
    Raya{75, 33, 192, 33},
});

constexpr auto kTitulos = std::to_array<Elemento>({
    Letra{kLetraDeRotulos, 9, Peso::Negrita},
    Rotulo{Op::C, 70, 15, 126, u"569 EREDUAREN ERANSKINA"},
    Rotulo{Op::C, 70, 18, 126, u"ANEXO DEL MODELO 569"},
    Rotulo{Op::C, 70, 23, 126, u"ESTABLEZIMENDUAREN ARABERAKO BANAKETAREN AITORPENA (EBA)"},
    Rotulo{Op::C, 70, 26, 126, u"DECLARACION DE DESGLOSE POR ESTABLECIMIENTOS (DDE)"},
    Letra{kLetraDeRotulos, 8, Peso::Negrita},
    Rotulo{Op::C, 77, 33.5, 95, u"Zenbait hidrokarburoren txikizkako salmenten gaineko zerga"},
    Rotulo{Op::C, 77, 37, 95, u"Impuesto sobre ventas minoristas de determinados hidrocarburos"},
    Letra{kLetraDeRotulos, 8, Peso::Normal},
    Rotulo{Op::L, 174, 35, 0, u"Orri zk:"},
    Rotulo{Op::L, 186, 35, 0, u"/"},
    Rotulo{Op::L, 174, 38, 0, u"Hoja:"},
    Rotulo{Op::L, 184, 38, 0, u"de"},
});

struct Numeracion {
    int pagina;
    int total;
};

QString Pagina(const Numeracion& n) { return QString::number(n.pagina); }
QString Total(const Numeracion& n) { return QString::number(n.total); }

// Behind the labels of each language.
constexpr auto kNumeracion = std::to_array<CampoDe<const Numeracion&>>({
    {Op::L, 183, 35, 0, Pagina},
    {Op::L, 188, 35, 0, Total},
    {Op::L, 181.5, 38, 0, Pagina},
    {Op::L, 188, 38, 0, Total},
});

}  // namespace

void ImprimirCabeceraAnexo(const Tabla& vBufferAnexo) {
    Dibujar(kCuadro);
    ImprimirMembrete();
    Dibujar(kTitulos);
    Usar({kLetraDeDatos, 8, Peso::Negrita});
    // Page 1 of the document is the return.
    EscribirCampos(kNumeracion, 0,
                   {Impresora().NumeroDePagina() - 1, TotalDePaginasMostrado(vBufferAnexo.UltimaFila())});
    Usar({kLetraDeDatos, 8, Peso::Normal});
}

}  // namespace impreso
