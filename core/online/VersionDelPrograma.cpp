#include "core/online/VersionDelPrograma.h"

#include <QStringList>
#include <initializer_list>

#include "core/base/Pantalla.h"
#include "core/online/cZTActOnline.h"
#include "core/run/Entorno.h"
#include "core/run/Textos.h"

using namespace Qt::StringLiterals;

namespace {

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
        Pantalla().MensajePlataforma(Texto(Id::SinVersion), false);
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
