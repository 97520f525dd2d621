#include "core/printing/Membrete.h"

#include "core/printing/ElementosDeImpreso.h"
#include "core/run/Entorno.h"
#include "core/services/SvrKLComunLib/cMiscelaneos.h"

namespace impreso {

namespace {

using SvrKLComunLib::cMiscelaneos;

QString Departamento(cMiscelaneos& miscelaneos, qint16 idioma) {
    miscelaneos.idioma = idioma;
    return miscelaneos.HaciendaFiscalidad();
}

// The form has both languages, whatever that of the screen.
constexpr auto kAutoridad = std::to_array<Elemento>({
    Letra{kLetraDeRotulos, 7, Peso::Normal},
    Rotulo{Op::T, 32, 16, 0, u"Ondarziako Foru Aldundia"},
    Rotulo{Op::T, 32, 19, 0, u"Diputación Foral de Ondarzia"},
});
constexpr auto kDepartamento = std::to_array<CampoDe<cMiscelaneos&>>({
    {Op::T, 12, 31, 0, [](cMiscelaneos& m) { return Departamento(m, kOffsetEuskera); }},
    {Op::T, 12, 34, 0, [](cMiscelaneos& m) { return Departamento(m, kOffsetCastellano); }},
});
constexpr auto kDireccion = std::to_array<Elemento>({
    Rotulo{Op::C, 12, 38, 50, u"www.ondarzia.example"},
});

}  // namespace

void ImprimirMembrete() {
    auto miscelaneos = ServidorDeReferencia<cMiscelaneos>();
    Dibujar(kAutoridad);
    EscribirCampos(kDepartamento, 0, miscelaneos);
    Dibujar(kDireccion);
}

}  // namespace impreso
