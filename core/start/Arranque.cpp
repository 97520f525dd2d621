#include "core/start/Arranque.h"

#include <QDir>
#include <optional>

#include "core/base/ErrorZT.h"
#include "core/base/Instancias.h"
#include "core/base/Pantalla.h"
#include "core/base/Procedimiento.h"
#include "core/online/cZTActOnline.h"
#include "core/run/Entorno.h"
#include "core/run/GeneralZT.h"
#include "core/run/cZTFecha.h"
#include "core/services/svrZELT/cZTTraspaso.h"
#include "core/start/Instalacion.h"

using namespace Qt::StringLiterals;

void InicializarTodo() {
    Procedimiento(u"General.InicializarTodo", [] {
        EntornoZT& e = Entorno();
        const QString raiz = e.CarpetaDeUsuario ? e.CarpetaPrograma : RaizDeDatos(e.CarpetaPrograma);
        e.mdbPath = raiz + QDir::separator() + u"Tablas"_s + QDir::separator();
        e.mdbmod = e.mdbPath + u"ZELTMOD.mdb"_s;
        e.mdblec = e.mdbPath + u"ZELTLEC.mdb"_s;
    });
}

bool Traspaso() {
    return Procedimiento(u"MDIZT.Traspaso", [] {
        Pantalla().PonerPuntero(Puntero::Espera);
        const bool alto = Entorno().Migrar();
        if (alto) {
            Entorno().Terminar(0);
        } else {
            Pantalla().PonerPuntero(Puntero::Normal);
        }
        return alto;
    });
}

bool EsDanoDelAlmacen(const ErrorZT& error) {
    svrZELT::cZTTraspaso servidor;
    servidor.mdbmod = Entorno().mdbmod;
    return servidor.EsDano(error);
}

bool VolverTrasDano(const ErrorZT& dano) {
    if (!Entorno().Volver(dano)) {
        Entorno().Terminar(0);
        return false;
    }
    if (Traspaso()) {
        return false;
    }
    InicializarEntorno();
    return true;
}

bool ConVuelta(const std::function<void()>& paso) {
    for (;;) {
        std::optional<ErrorZT> dano;
        try {
            paso();
            return true;
        } catch (const ErrorZT& error) {
            if (!EsDanoDelAlmacen(error)) {
                throw;
            }
            dano = error;
        }
        if (!VolverTrasDano(*dano)) {
            return false;
        }
    }
}

RevisionDeFondo& oRevision() { return InstanciaUnica<RevisionDeFondo>(); }

void ExigirAlmacenSano() {
    if (const auto dano = oRevision().Resultado()) {
        throw *dano;
    }
}

void InicializarEntorno() {
    InicializarDatosGenerales();
    oActOnline().ObtenerURLAct();
    oFecha().LeerIdioma();
    oActOnline().LeerActOnline();
    Entorno().OffsetIdioma = OffsetDeIdioma(oFecha().IDI());
}
