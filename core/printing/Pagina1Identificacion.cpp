#include "core/base/Formatos.h"
#include "core/printing/ElementosDeImpreso.h"
#include "core/printing/Pagina1.h"
#include "core/printing/ValoresDeImpreso.h"
#include "core/records/cZTDeclarante.h"

namespace impreso {

namespace {

constexpr auto kCuadro = std::to_array<Elemento>({
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

constexpr auto kRotulos = std::to_array<Elemento>({
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

}  // namespace

void ImprimirIdentificacion(const DatosDeAnexo& anexo) {
    Dibujar(kCuadro);
    Dibujar(kRotulos);
    Dibujar(kDeclarante);
    if (anexo.NumEstablecimientos == 1) {
        EscribirCampos(kEstablecimiento, 0, anexo.vBufferAnexo);
    }
    Usar({kLetraDeDatos, 8, Peso::Normal});
}

}  // namespace impreso
