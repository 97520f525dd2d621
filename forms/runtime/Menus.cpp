#include "forms/runtime/Menus.h"

#include "forms/runtime/Formularios.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace {

CanalMenus*& Canal() {
    static CanalMenus* canal = nullptr;
    return canal;
}

/// The window lives a little longer than the form: what is unloaded hears nothing.
bool HayMarco() { return Canal() != nullptr && Formularios::Cargado(Forma::MDIZT); }

}  // namespace

void FijarMenus(CanalMenus* menus) { Canal() = menus; }

void Habilitar_menu() {
    if (HayMarco()) {
        Canal()->HabilitarMenu();
    }
}

void Deshabilitar_menu() {
    if (HayMarco()) {
        Canal()->DeshabilitarMenu();
    }
}
