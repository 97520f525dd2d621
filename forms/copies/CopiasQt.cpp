#include "forms/copies/CopiasQt.h"

#include "core/base/Pantalla.h"
#include "core/run/Entorno.h"
#include "forms/copies/TextosDeCopia.h"
#include "forms/copies/frmZTCopia.h"
#include "forms/copies/frmZTRestaurar.h"
#include "forms/copies/frmZTVuelta.h"
#include "forms/runtime/Formularios.h"

QDateTime CopiasQt::Ahora() const { return Entorno().Reloj(); }

void CopiasQt::PedirCopia(TareaDeCopia& tarea) { ElFormulario<frmZTCopia>().Pedir(tarea); }

void CopiasQt::PedirRestauracion(TareaDeRestauracion& tarea) { ElFormulario<frmZTRestaurar>().Pedir(tarea); }

bool CopiasQt::PedirVuelta(TareaDeVuelta& tarea) {
    if (!tarea.Copias().empty()) {
        Entorno().OffsetIdioma = OffsetDeIdioma(tarea.Copias().front().idioma);
    }
    Pantalla().PonerPuntero(Puntero::Normal);
    const bool hecho = ElFormulario<frmZTVuelta>().Pedir(tarea);
    Pantalla().PonerPuntero(Puntero::Espera);
    return hecho;
}

void CopiasQt::AvisarSinCopiaDelDia(const FalloDeCopia& fallo) {
    Pantalla().MensajePlataforma(TextoDeFallo(u"copia_diaria_no_hecha", fallo), true);
}
