#include "shell/Menus.h"

#include "shell/Formularios.h"
#include "shell/MDIZT.h"

namespace {

bool HayMarco() { return Formularios::Cargado(MDIZT::kNombre.toString()); }

}  // namespace

void Habilitar_menu() {
    if (HayMarco()) {
        ElFormulario<MDIZT>().HabilitarMenu();
    }
}

void Deshabilitar_menu() {
    if (HayMarco()) {
        ElFormulario<MDIZT>().DeshabilitarMenu();
    }
}
