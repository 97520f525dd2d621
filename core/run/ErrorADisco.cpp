#include "core/run/ErrorADisco.h"

#include <QDir>
#include <QFile>

#include "core/base/ErrorZT.h"
#include "core/base/FicherosAbiertos.h"
#include "core/base/Windows1252.h"
#include "core/run/Entorno.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kSubrayados = 58;

/// The log is read in the platform's 8-bit page; text that the page lacks is written in UTF-8 rather than
/// lost, since a log that says less than the screen helps nobody.
QByteArray EnBytes(const QString& texto) {
    try {
        return AWindows1252(texto);
    } catch (const ErrorZT&) {
        return texto.toUtf8();
    }
}

}  // namespace

QString pathTemporal() {
    QString carpeta = Entorno().CarpetaTemporal;
    if (!carpeta.isEmpty() && !carpeta.endsWith(QDir::separator())) {
        carpeta += QDir::separator();
    }
    return carpeta;
}

QString NombrePC() { return Entorno().NombreMaquina; }

QString ErrorADisco(const QString& formulario, const QString& evento, const QString& descripcion) {
    const QDateTime ahora = Entorno().Reloj();
    QString ruta = pathTemporal() + u"Error"_s + ahora.toString(u"yy-MM-dd hh-mm-ss") + u".log"_s;
    const QString raya(kSubrayados, u'_');
    const QStringList lineas{u"Error generado el "_s + ahora.toString(u"dd/MM/yy hh:mm:ss") + u" por el"_s,
                             u"ejecutable "_s + Entorno().NombreEjecutable,
                             u"en la máquina "_s + NombrePC(),
                             raya,
                             {},
                             u"  Formulario           "_s + formulario,
                             u"  Evento                  "_s + evento,
                             u"  Descripción       "_s,
                             {},
                             descripcion,
                             raya,
                             {},
                             {}};
    QFile fichero(ruta);
    if (fichero.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        for (const QString& linea : lineas) {
            fichero.write(EnBytes(linea + u"\r\n"_s));
        }
        fichero.close();
    }
    CerrarFicherosAbiertos();
    return ruta;
}
