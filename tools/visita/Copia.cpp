#include "tools/visita/Etapas.h"

using namespace Qt::StringLiterals;

void CopiaYRestauracion(Mano& mano) {
    mano.CuandoAparezca(u"frmZTCopia"_s, [&mano](QWidget& copia) {
        mano.Guardar(u"40-copia"_s);
        mano.CuandoAparezca(u"frmZTMsgBox"_s, [&mano](QWidget& aviso) {
            mano.Guardar(u"41-copia-hecha"_s);
            mano.Pulsar(aviso, u"cmdAceptar"_s);
        });
        mano.Pulsar(copia, u"cmdCrear"_s);
    });
    mano.Elegir(u"mnuBackup"_s);
    mano.CuandoAparezca(u"frmZTRestaurar"_s, [&mano](QWidget& restaurar) {
        mano.Guardar(u"42-restaurar"_s);
        mano.CuandoAparezca(u"frmZTMsgBox"_s, [&mano](QWidget& aviso) {
            mano.Guardar(u"43-restaurado"_s);
            mano.Pulsar(aviso, u"cmdAceptar"_s);
        });
        mano.Pulsar(restaurar, u"cmdRestaurar"_s);
    });
    mano.Elegir(u"mnuRestore"_s);
}
