#include "core/online/cZTActOnline.h"

#include "core/base/Instancias.h"
#include "core/base/Valor.h"
#include "core/run/Entorno.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"

namespace {

/// The update setting lives in the user's store, but its path goes through the property of the other one:
/// the setting survives a new reference file and follows the backup.
svrZELT::cZTDatosGeneral ServidorDelAjuste() {
    svrZELT::cZTDatosGeneral servidor;
    servidor.mdblec = Entorno().mdbmod;
    return servidor;
}

svrZELT::cZTDatosGeneral ServidorDelIdioma() { return ServidorDeUsuario<svrZELT::cZTDatosGeneral>(); }

}  // namespace

QString cZTActOnline::ObtenerURLAct() {
    URLAct = ServidorDeReferencia<svrZELT::cZTDatosGeneral>().URLAct();
    return {};
}

void cZTActOnline::GuardarActOnline() const { ServidorDelAjuste().GuardarActOnline(ActOnline); }

void cZTActOnline::LeerActOnline() { ActOnline = ServidorDelAjuste().ObtenerActOnline(); }

void cZTActOnline::ModificarIdioma(const QString& sIdioma) const {
    ServidorDelIdioma().CambiarIdioma(sIdioma);
}

void cZTActOnline::LeerIdioma() const {
    Entorno().OffsetIdioma = Valor(ServidorDelIdioma().ObtenerIdioma()).aEntero16();
}

cZTActOnline& oActOnline() { return InstanciaUnica<cZTActOnline>(); }
