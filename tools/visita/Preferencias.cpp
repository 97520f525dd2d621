#include "core/online/cZTActOnline.h"
#include "core/run/Entorno.h"
#include "forms/runtime/Formularios.h"
#include "tools/visita/Etapas.h"
#include "tools/visita/Exigir.h"

using namespace Qt::StringLiterals;

namespace {

/// Opens the preferences and accepts them with the other language.
void CambiarDeIdioma(Mano& mano, const QString& opcion, const QString& imagen) {
    mano.CuandoAparezca(u"frmZTPreferencias"_s, [&](QWidget& preferencias) {
        mano.Pulsar(preferencias, opcion);
        mano.Guardar(imagen);
        mano.Pulsar(preferencias, u"cmdAceptar"_s);
    });
    const qint16 anterior = Entorno().OffsetIdioma;
    mano.Elegir(u"mnuPreferencias"_s);
    Exigir(Entorno().OffsetIdioma != anterior, u"el idioma no ha cambiado"_s);
}

/// A dialog of the update check as the check leaves it.
void DialogoDeVersion(Mano& mano, const QString& formulario, const QString& imagen) {
    mano.CuandoAparezca(formulario, [&](QWidget& dialogo) {
        mano.Guardar(imagen);
        mano.Pulsar(dialogo, u"CmdContinuar"_s);
    });
    Formularios::MostrarModal(formulario);
}

}  // namespace

void Preferencias(Mano& mano) {
    const bool castellano = mano.Idioma() == u"C";
    CambiarDeIdioma(mano, castellano ? u"optEusk"_s : u"optCast"_s, u"50-preferencias"_s);
    mano.Guardar(u"51-otro-idioma"_s);
    CambiarDeIdioma(mano, castellano ? u"optCast"_s : u"optEusk"_s, u"52-preferencias-vuelta"_s);

    cZTActOnline& act = oActOnline();
    act.SitAct = 1;
    DialogoDeVersion(mano, u"frmZTSinConexion"_s, u"53-sin-conexion"_s);
    act.ComVer = 1;
    act.ActVer1 = u"1"_s;
    act.ActVer2 = u"1"_s;
    act.ActVer3 = u"0"_s;
    act.ActDescripcion = castellano ? u"Nuevos tipos impositivos."_s : u"Zerga-tasa berriak."_s;
    act.ActDownloadURL = u"https://www.ondarzia.example/zelt"_s;
    DialogoDeVersion(mano, u"frmZTVersionCheck"_s, u"54-version"_s);
}
