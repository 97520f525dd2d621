#include "core/start/Arranque.h"

#include <QDir>

#include "core/base/ErrorZT.h"
#include "core/base/Pantalla.h"
#include "core/base/Procedimiento.h"
#include "core/online/cZTActOnline.h"
#include "core/run/Entorno.h"
#include "core/run/GeneralZT.h"
#include "core/run/cZTFecha.h"
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

void InicializarEntorno() {
    InicializarDatosGenerales();
    oActOnline().ObtenerURLAct();
    oFecha().LeerIdioma();
    oActOnline().LeerActOnline();
    Entorno().OffsetIdioma = OffsetDeIdioma(oFecha().IDI());
}
