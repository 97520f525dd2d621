#include "app/AtenderDano.h"

#include <QScopeGuard>
#include <QTimer>

#include "app/MDIZT.h"
#include "core/start/Arranque.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/Menus.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace {

/// The copy can be of another language and of other declarants.
void EmpezarConLaCopia() {
    if (!Formularios::Cargado(Forma::MDIZT)) {
        return;
    }
    Formularios::DescargarTodos(Forma::MDIZT);
    ElFormulario<MDIZT>().AnadirCaptions();
    Deshabilitar_menu();
    Habilitar_menu();
}

}  // namespace

bool AtenderDano(const ErrorZT& error) {
    static bool atendiendo = false;
    if (atendiendo || !Formularios::Cargado(Forma::MDIZT) || !EsDanoDelAlmacen(error)) {
        return false;
    }
    atendiendo = true;
    const auto salida = qScopeGuard([] { atendiendo = false; });
    if (VolverTrasDano(error)) {
        QTimer::singleShot(0, &ElFormulario<MDIZT>(), [] { Evento(EmpezarConLaCopia); });
    }
    return true;
}
