#include "shell/CopiasQt.h"

#include "base/Pantalla.h"
#include "shell/Entorno.h"
#include "shell/Formularios.h"
#include "shell/TextosDeCopia.h"
#include "shell/frmZTCopia.h"
#include "shell/frmZTRestaurar.h"
#include "shell/frmZTVuelta.h"

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
    Pantalla().MensajePlataformaConDetalle(TextoDeFallo(u"copia_diaria_no_hecha", fallo), fallo.causa);
}
