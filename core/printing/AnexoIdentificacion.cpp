#include "core/printing/Anexo.h"
#include "core/printing/ElementosDeImpreso.h"
#include "core/printing/ValoresDeImpreso.h"
#include "core/printing/cZTImprimir.h"
#include "core/records/cZTDeclarante.h"

namespace impreso {

namespace {

constexpr auto kCuadro = std::to_array<Elemento>({
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

constexpr auto kRotulos = std::to_array<Elemento>({
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

constexpr auto kDatos = std::to_array<Elemento>({
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

}  // namespace

void ImprimirIdentificacionAnexo() {
    Dibujar(kCuadro);
    Dibujar(kRotulos);
    Dibujar(kDatos);
}

}  // namespace impreso
