#include "printing/Membrete.h"

#include "data/SvrKLComunLib/cMiscelaneos.h"
#include "printing/ElementosDeImpreso.h"
#include "shell/Entorno.h"

namespace impreso {

namespace {

QString Departamento(qint16 idioma) {
    SvrKLComunLib::cMiscelaneos miscelaneos;
    miscelaneos.mdblec = Entorno().mdblec;
    miscelaneos.idioma = idioma;
    return miscelaneos.HaciendaFiscalidad();
}

// The form has both languages, whatever that of the screen.
constexpr auto kMembrete = std::to_array<Elemento>({
    Letra{kLetraDeRotulos, 7, Peso::Normal},
    Rotulo{Op::T, 32, 16, 0, u"Ondarziako Foru Aldundia"},
    Rotulo{Op::T, 32, 19, 0, u"Diputación Foral de Ondarzia"},
    Campo{Op::T, 12, 31, 0, [] { return Departamento(kOffsetEuskera); }},
    Campo{Op::T, 12, 34, 0, [] { return Departamento(kOffsetCastellano); }},
    Rotulo{Op::C, 12, 38, 50, u"www.ondarzia.example"},
});

}  // namespace

void ImprimirMembrete() { Dibujar(kMembrete); }

}  // namespace impreso
