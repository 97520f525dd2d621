#include "tools/visita/Ejemplos.h"

#include "core/base/Modelo.h"
#include "core/records/FormatoCIM.h"

using namespace Qt::StringLiterals;

namespace {

QString CimBueno(const QString& primeros) { return primeros + LetraDeControlCIM(primeros); }

std::vector<Casilla> CasillasDe(const QString& nif, const QString& nombre, const QString& via,
                                const QString& numero, const QString& telefono) {
    return {{u"txtNIF"_s, nif},       {u"txtNombre"_s, nombre},   {u"txtSiglas"_s, u"cr"_s},
            {u"txtViaPub"_s, via},    {u"txtNumero"_s, numero},   {u"txtPiso"_s, u"1"_s},
            {u"txtMano"_s, u"izq"_s}, {u"txtProvin"_s, u"20"_s},  {u"txtCPost"_s, u"20015"_s},
            {u"txtMuni"_s, u"5"_s},   {u"txtTelPre"_s, u"943"_s}, {u"txtTelNum"_s, telefono}};
}

DeclaranteDeEjemplo Empresa() {
    DeclaranteDeEjemplo empresa{
        .clave = u"empresa"_s,
        .nif = u"B20000113"_s,
        .nombre = u"Carburantes Larzabaleta, S.L."_s,
        .casillas = {},
        .establecimientos = {{CimBueno(u"20ES123"_s), u"carretera del puerto, km 2"_s},
                             {CimBueno(u"20ES124"_s), u"avenida de la sierra, 40"_s}},
        .declaraciones = {}};
    // All six products of 2002: 24 x 15 + 24 x 10 + 6 x 10 + 1 x 10 + 24 x 10 + 6 x 7.
    empresa.declaraciones.push_back(
        {.ejercicio = u"2002"_s,
         .periodo = 1,
         .establecimientos = {{{u"cnuBaseImp1"_s, u"10"_s},
                               {u"cnuBaseImp2"_s, u"10"_s},
                               {u"cnuBaseImp3"_s, u"10"_s},
                               {u"cnuBaseImp4"_s, u"10"_s},
                               {u"cnuBaseImp5"_s, u"10"_s}},
                              {{u"cnuBaseImp1"_s, u"5"_s}, {u"cnuBaseImp6"_s, u"7"_s}}},
         .lineas = 7,
         .total = u"952,00"_s});
    // 24 x 200,50 + 24 x 310,25 + 6 x 45,75.
    empresa.declaraciones.push_back(
        {.ejercicio = u"2007"_s,
         .periodo = 2,
         .establecimientos = {{{u"cnuBaseImp1"_s, u"120,5"_s}, {u"cnuBaseImp2"_s, u"310,25"_s}},
                              {{u"cnuExento1"_s, u"12,5"_s},
                               {u"cnuBaseImp1"_s, u"80"_s},
                               {u"cnuBaseImp3"_s, u"45,75"_s}}},
         .lineas = 4,
         .total = u"12.532,50"_s});
    return empresa;
}

DeclaranteDeEjemplo Persona() {
    DeclaranteDeEjemplo persona{.clave = u"persona"_s,
                                .nif = u"12345678Z"_s,
                                .nombre = u"Etxarte Muñoz, Maider"_s,
                                .casillas = {},
                                .establecimientos = {{CimBueno(u"20ES200"_s), u"plaza del mercado, 3"_s}},
                                .declaraciones = {}};
    // 24 x 61,25 + 24 x 98,50.
    persona.declaraciones.push_back(
        {.ejercicio = u"2007"_s,
         .periodo = 2,
         .establecimientos = {{{u"cnuBaseImp1"_s, u"61,25"_s}, {u"cnuBaseImp2"_s, u"98,5"_s}}},
         .lineas = 2,
         .total = u"3.834,00"_s});
    return persona;
}

/// Six establishments with the products in use: in the e-th one, 10 x e + p thousand litres or tonnes of the
/// product p.
DeclaranteDeEjemplo ConTreintaLineas() {
    DeclaranteDeEjemplo cadena{.clave = u"treinta"_s,
                               .nif = u"A20000121"_s,
                               .nombre = u"Estaciones del Aldabe, S.A."_s,
                               .casillas = {},
                               .establecimientos = {},
                               .declaraciones = {}};
    DeclaracionDeEjemplo declaracion{.ejercicio = u"2007"_s,
                                     .periodo = 4,
                                     .establecimientos = {},
                                     .lineas = 30,
                                     // 24 x 216 + 24 x 222 + 6 x 228 + 1 x 234 + 24 x 240.
                                     .total = u"17.874,00"_s};
    for (int e = 1; e <= 6; ++e) {
        cadena.establecimientos.push_back(
            {CimBueno(u"20ES30%1"_s.arg(e)), u"carretera de la costa, km %1"_s.arg(10 * e)});
        std::vector<Casilla> casillas;
        for (int p = 1; p <= kProductosEnUso; ++p) {
            casillas.push_back({u"cnuBaseImp%1"_s.arg(p), QString::number(10 * e + p)});
        }
        declaracion.establecimientos.push_back(casillas);
    }
    cadena.declaraciones.push_back(declaracion);
    return cadena;
}

}  // namespace

std::vector<DeclaranteDeEjemplo> Ejemplos() {
    std::vector<DeclaranteDeEjemplo> ejemplos{Empresa(), Persona(), ConTreintaLineas()};
    int numero = 0;
    for (DeclaranteDeEjemplo& ejemplo : ejemplos) {
        ++numero;
        ejemplo.casillas = CasillasDe(ejemplo.nif.toLower(), ejemplo.nombre, u"del puerto"_s,
                                      QString::number(14 + numero), u"12345%1"_s.arg(numero));
    }
    return ejemplos;
}
