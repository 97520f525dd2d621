#include <functional>

#include "tools/visita/Etapas.h"

using namespace Qt::StringLiterals;

namespace {

/// Accepts the message box that comes next, and then does what follows.
void Aceptar(
    Mano& mano, const QString& imagen, const std::function<void()>& despues = [] {}) {
    mano.CuandoAparezca(u"frmZTMsgBox"_s, [&mano, imagen, despues](QWidget& aviso) {
        mano.Guardar(imagen);
        despues();
        mano.Pulsar(aviso, u"cmdAceptar"_s);
    });
}

}  // namespace

void CopiaYRestauracion(Mano& mano) {
    mano.CuandoAparezca(u"frmZTCopia"_s, [&mano](QWidget& copia) {
        mano.Guardar(u"40-copia"_s);
        Aceptar(mano, u"41-copia-hecha"_s);
        mano.Pulsar(copia, u"cmdAceptar"_s);
    });
    mano.Elegir(u"mnuBackup"_s);
    mano.CuandoAparezca(u"frmZTRestaurar"_s, [&mano](QWidget& restaurar) {
        mano.Guardar(u"42-restaurar"_s);
        Aceptar(mano, u"43-restaurar-pregunta"_s, [&mano] { Aceptar(mano, u"44-restaurado"_s); });
        mano.Pulsar(restaurar, u"cmdAceptar"_s);
    });
    mano.Elegir(u"mnuRestore"_s);
}
