#include "core/printing/Pagina1.h"

#include "core/base/Formatos.h"
#include "core/printing/ElementosDeImpreso.h"
#include "core/printing/Membrete.h"
#include "core/printing/ValoresDeImpreso.h"
#include "core/printing/cZTImprimir.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/records/cZTDeclarante.h"
#include "core/run/GeneralZT.h"

namespace impreso {

namespace {

constexpr auto kCuadroDeCabecera = std::to_array<Elemento>({
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

/// Year and quarter, in the head block whichever block calls it, in the font that the device has.
void ImprimirDevengo() { Dibujar(kDevengo); }

constexpr auto kCuadroDeIdentificacion = std::to_array<Elemento>({
    Marco{10, 45, 192, 80},
    Imagen{ImagenDeImpreso::Declarante, 10.5, 52},
    Letra{kLetraDeRotulos, 8, Peso::Normal},
    Raya{19, 45, 19, 80},
    Raya{49, 45, 49, 53},
    Raya{19, 53, 192, 53},
    Raya{100, 53, 100, 61},
    Raya{120, 53, 120, 61},
    Raya{140, 53, 140, 61},
    Raya{160, 53, 160, 61},
    Raya{19, 61, 192, 61},
    Raya{100, 61, 100, 69},
    Raya{140, 61, 140, 69},
    Raya{19, 69, 192, 69},
    Raya{170, 69, 170, 80},
});

constexpr auto kRotulosDeIdentificacion = std::to_array<Elemento>({
    Rotulo{Op::L, 21, 46, 0, u"IFZ / NIF"},
    Rotulo{Op::L, 50, 46, 0, u"Deiturak eta izena, edo sozietate izena / Apellidos y Nombre o Razón Social"},
    Rotulo{Op::L, 21, 54, 0, u"Zerga helbidea / Domicilio fiscal"},
    Rotulo{Op::L, 101, 54, 0, u"Zk./Nº"},
    Rotulo{Op::L, 121, 54, 0, u"Solairua/Piso"},
    Rotulo{Op::L, 141, 54, 0, u"Aldea/Mano"},
    Rotulo{Op::L, 161, 54, 0, u"Telefonoa/Teléfono"},
    Rotulo{Op::L, 21, 62, 0, u"Udalerria / Municipio"},
    Rotulo{Op::L, 101, 62, 0, u"Probintzia / Provincia"},
    Rotulo{Op::L, 141, 62, 0, u"Posta kodea / Cód. Postal"},
    Rotulo{Op::L, 21, 70, 0, u"ESTABLEZIMENDUAren helbidea, herria, udalerria eta probintzia"},
    Rotulo{Op::L, 21, 73, 0, u"Domicilio, localidad municipio y provincia del ESTABLECIMIENTO"},
    Rotulo{Op::L, 171, 70, 0, u"TIK kodea"},
    Rotulo{Op::L, 171, 73, 0, u"C.I.M."},
});

constexpr auto kDeclarante = std::to_array<Elemento>({
    Letra{kLetraDeDatos, 8, Peso::Negrita},
    Campo{Op::L, 22, 50, 0, [] { return oDeclarante().NIF; }},
    Campo{Op::L, 50, 50, 0, [] { return oDeclarante().Nombre; }},
    Campo{Op::L, 22, 59, 0, ViaPublica},
    Campo{Op::L, 101, 59, 0, NumeroDeCasa},
    Campo{Op::L, 121, 59, 0, [] { return oDeclarante().Piso; }},
    Campo{Op::L, 141, 59, 0, [] { return oDeclarante().Mano; }},
    Campo{Op::L, 161, 59, 0, Telefono},
    Campo{Op::L, 22, 67, 0, [] { return oDeclarante().Munici; }},
    Campo{Op::L, 101, 67, 0, ProvinciaDelDeclarante},
    Campo{Op::L, 141, 67, 0, [] { return Formatear(oDeclarante().CPost, u"00000"); }},
});

/// The rows of all products of the only establishment tell the same of it.
constexpr int kPrimeraFila = 1;

QString DireccionDelEstablecimiento(const Tabla& buffer) {
    return buffer(DatosDeAnexo::Columna::kDomicilio, kPrimeraFila).aTexto() + u' ' +
           buffer(DatosDeAnexo::Columna::kMunici, kPrimeraFila).aTexto() + u' ' +
           NombreDeProvincia(buffer(DatosDeAnexo::Columna::kProvin, kPrimeraFila).aEntero16());
}

QString CIMDelEstablecimiento(const Tabla& buffer) {
    return buffer(DatosDeAnexo::Columna::kCIM, kPrimeraFila).aTexto();
}

constexpr auto kEstablecimiento = std::to_array<CampoDe<const Tabla&>>({
    {Op::L, 22, 78, 0, DireccionDelEstablecimiento},
    {Op::L, 175, 78, 0, CIMDelEstablecimiento},
});

constexpr auto kRotulosSinIngreso = std::to_array<Elemento>({
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

constexpr auto kMarcaSinIngreso = std::to_array<Elemento>({Rotulo{Op::L, 184, 139, 0, u"X"}});

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

void ImprimirCabecera() {
    Dibujar(kCuadroDeCabecera);
    ImprimirMembrete();
    Dibujar(kTitulos);
    Usar({kLetraDeDatos, 8, Peso::Negrita});
    ImprimirDevengo();
    Usar({kLetraDeDatos, 8, Peso::Normal});
}

void ImprimirIdentificacion(const DatosDeAnexo& anexo) {
    Dibujar(kCuadroDeIdentificacion);
    Dibujar(kRotulosDeIdentificacion);
    Dibujar(kDeclarante);
    if (anexo.NumEstablecimientos == 1) {
        EscribirCampos(kEstablecimiento, 0, anexo.vBufferAnexo);
    }
    Usar({kLetraDeDatos, 8, Peso::Normal});
}

void ImprimirSinIngreso() {
    Dibujar(kRotulosSinIngreso);
    Usar({kLetraDeDatos, 8, Peso::Negrita});
    if (oDeclaraciones().TOTCUO() == 0.0) {
        Dibujar(kMarcaSinIngreso);
    }
    Usar({kLetraDeDatos, 8, Peso::Normal});
}

void ImprimirFirma() { Dibujar(kFirma); }

void ImprimirCartaDePago() {
    Dibujar(kCarta);
    Usar({kLetraDeDatos, 8, Peso::Negrita});
    // The form strikes year and quarter twice, in the head block both times: docs/reglas.md,
    // devengo-dos-veces.
    ImprimirDevengo();
    Usar({kLetraDeDatos, 8, Peso::Normal});
}

}  // namespace impreso
