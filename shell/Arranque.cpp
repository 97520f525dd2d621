#include "shell/Arranque.h"

#include <QDir>
#include <QStringList>

#include "base/ErrorZT.h"
#include "base/Pantalla.h"
#include "base/Procedimiento.h"
#include "online/cZTActOnline.h"
#include "shell/CarpetaPrograma.h"
#include "shell/Entorno.h"
#include "shell/GeneralZT.h"
#include "shell/Instalacion.h"
#include "shell/Textos.h"
#include "shell/cZTFecha.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTextoSinVersion = 207;

QString Unidos(std::initializer_list<quint16> numeros) {
    QStringList textos;
    for (const quint16 n : numeros) {
        textos += QString::number(n);
    }
    return textos.join(u'.');
}

}  // namespace

void ObtenerVersion() {
    EntornoZT& e = Entorno();
    cZTActOnline& act = oActOnline();
    act.ActFile = EnCarpetaPrograma(u"ZELT.exe"_s);
    const auto version = e.LectorVersion();
    if (!version) {
        Pantalla().MensajePlataforma(Texto(kTextoSinVersion), false);
        return;
    }
    // The third number of the file version is the build's and is left out.
    const auto& f = version->fichero;
    const auto& p = version->producto;
    e.VersionPrograma = Unidos({f[0], f[1], f[3]});
    act.ProgVer1 = QString::number(f[0]);
    act.ProgVer2 = QString::number(f[1]);
    act.ProgVer3 = QString::number(f[3]);
    e.VersionProducto = Unidos({p[0], p[1], p[2], p[3]});
}

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
