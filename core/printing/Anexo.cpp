#include "core/printing/Anexo.h"

#include <cmath>

#include "core/printing/DispositivoImpresion.h"
#include "core/printing/ElementosDeImpreso.h"
#include "core/printing/Membrete.h"
#include "core/printing/ValoresDeImpreso.h"
#include "core/printing/cZTImprimir.h"
#include "core/records/cZTDeclarante.h"

namespace impreso {

namespace {

constexpr int kLineasPorSalto = 23;
constexpr double kAlturaDeEtiqueta = 246;

constexpr auto kCuadroDeCabecera = std::to_array<Elemento>({
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

constexpr auto kCuadroDeIdentificacion = std::to_array<Elemento>({
    Marco{10, 44, 192, 74},
    Letra{kLetraDeRotulos, 7, Peso::Normal},
    Raya{40, 44, 40, 74},
    Raya{58, 44, 58, 54},
    Raya{165, 44, 165, 74},
    Raya{133, 54, 133, 64},
    Raya{149, 54, 149, 64},
    Raya{137, 64, 137, 74},
    Raya{165, 54, 192, 54},
    Raya{40, 54, 165, 54},
    Raya{40, 64, 165, 64},
});

constexpr Letra kNormal{kLetraDeRotulos, 7, Peso::Normal};
constexpr Letra kNegrita{kLetraDeRotulos, 7, Peso::Negrita};

constexpr auto kRotulosDeIdentificacion = std::to_array<Elemento>({
    kNegrita,
    Rotulo{Op::C, 10, 48, 30, u"Subj. pasiboaren"},
    Rotulo{Op::C, 10, 51, 30, u"identifikazioa"},
    Rotulo{Op::C, 10, 56, 30, u"Identificación del"},
    Rotulo{Op::C, 10, 59, 30, u"Sujeto pasivo"},
    kNormal,
    Rotulo{Op::L, 41, 45, 0, u"IZF / NIF"},
    Rotulo{Op::L, 59, 45, 0,
           u"Deiturak eta izena edo sozietatearen izena / Apellidos y nombre (o razón social)"},
    kNegrita,
    Rotulo{Op::C, 166, 45, 26, u"Sortzapena"},
    Rotulo{Op::C, 166, 48, 26, u"Devengo"},
    kNormal,
    Rotulo{Op::L, 166, 56, 0, u"Ekitaldia"},
    Rotulo{Op::L, 166, 59, 0, u"Ejercicio"},
    Marco{182, 56, 186, 60},
    Marco{186, 56, 190, 60},
    Rotulo{Op::L, 166, 64, 0, u"Zergaldia"},
    Rotulo{Op::L, 166, 67, 0, u"Periodo"},
    Marco{182, 64, 186, 68},
    Marco{186, 64, 190, 68},
    Rotulo{Op::L, 41, 56, 0, u"Zerga helbidea / Domicilio fiscal"},
    Rotulo{Op::L, 134, 56, 0, u"Zk. / Núm."},
    Rotulo{Op::L, 150, 56, 0, u"Solairua / Piso"},
    Rotulo{Op::L, 41, 66, 0, u"Udalerria eta probintzia / Municipio y Provincia"},
    Rotulo{Op::L, 138, 66, 0, u"Telefonoa / Teléfono"},
});

/// A digit of the year, counted from 0; nothing past its end.
QString CifraDelEjercicio(qsizetype lugar) { return QString::number(oImprimir().Ejercicio).mid(lugar, 1); }

QString MunicipioYProvincia() { return oDeclarante().Munici + u' ' + ProvinciaDelDeclarante(); }

constexpr auto kDatosDeIdentificacion = std::to_array<Elemento>({
    Letra{kLetraDeDatos, 7, Peso::Negrita},
    Campo{Op::L, 41, 51, 0, [] { return oDeclarante().NIF; }},
    Campo{Op::L, 60, 51, 0, [] { return oDeclarante().Nombre; }},
    Campo{Op::L, 41, 62, 0, ViaPublica},
    Campo{Op::L, 134, 62, 0, NumeroDeCasa},
    Campo{Op::L, 150, 62, 0, [] { return oDeclarante().Piso; }},
    Campo{Op::L, 41, 72, 0, MunicipioYProvincia},
    Campo{Op::L, 138, 72, 0, Telefono},
    Campo{Op::L, 184, 58, 0, [] { return CifraDelEjercicio(2); }},
    Campo{Op::L, 188, 58, 0, [] { return CifraDelEjercicio(3); }},
    Campo{Op::L, 184, 66, 0, [] { return QString::number(oImprimir().Periodo); }},
    Rotulo{Op::L, 188, 66, 0, u"T"},
    Letra{kLetraDeDatos, 7, Peso::Normal},
});

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

void ImprimirCabeceraAnexo(const Tabla& vBufferAnexo) {
    Dibujar(kCuadroDeCabecera);
    ImprimirMembrete();
    Dibujar(kTitulos);
    Usar({kLetraDeDatos, 8, Peso::Negrita});
    // Page 1 of the document is the return.
    EscribirCampos(kNumeracion, 0,
                   {Impresora().NumeroDePagina() - 1, TotalDePaginasMostrado(vBufferAnexo.UltimaFila())});
    Usar({kLetraDeDatos, 8, Peso::Normal});
}

void ImprimirIdentificacionAnexo() {
    Dibujar(kCuadroDeIdentificacion);
    Dibujar(kRotulosDeIdentificacion);
    Dibujar(kDatosDeIdentificacion);
}

void ImprimirFirmaAnexo() { Dibujar(kFirma); }

int PaginasDeAnexo(int lineas) { return 1 + lineas / kLineasPorSalto; }

int TotalDePaginasMostrado(int lineas) {
    return static_cast<int>(std::lround(static_cast<double>(lineas) / kLineasPorSalto)) + 1;
}

void ImprimirAnexo(TipoDeEjemplar Tipo, const Tabla& vBufferAnexo) {
    const int paginas = PaginasDeAnexo(vBufferAnexo.UltimaFila());
    for (int pagina = 1; pagina <= paginas; ++pagina) {
        Impresora().NuevaPagina();
        ImprimirEtiqueta(Tipo, kAlturaDeEtiqueta);
        ImprimirCabeceraAnexo(vBufferAnexo);
        ImprimirIdentificacionAnexo();
        ImprimirDesgloseAnexo(vBufferAnexo);
        ImprimirFirmaAnexo();
    }
}

}  // namespace impreso
