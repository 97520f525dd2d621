#include "core/run/ErrorADisco.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "core/base/ErrorZT.h"
#include "core/base/FicherosAbiertos.h"
#include "core/base/Windows1252.h"
#include "core/run/Entorno.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kSubrayados = 58;
constexpr QStringView kComienzo = u"Error generado el ";
/// Names that are tried while others have theirs.
constexpr int kIntentos = 10;

/// The log is read in the platform's 8-bit page; text that the page lacks is written in UTF-8 rather than
/// lost, since a log that says less than the screen helps nobody.
QByteArray EnBytes(const QString& texto) {
    try {
        return AWindows1252(texto);
    } catch (const ErrorZT&) {
        return texto.toUtf8();
    }
}

/// Makes way for a log under that name: of two in the same second the later one stays. What is no log of this
/// program, and a link, whatever it leads to, stays.
void QuitarElAnterior(const QString& ruta) {
    const QFileInfo anterior(ruta);
    if (anterior.isSymLink() || !anterior.isFile()) {
        return;
    }
    QFile fichero(ruta);
    const QByteArray comienzo = EnBytes(kComienzo.toString());
    if (fichero.open(QIODevice::ReadOnly) && fichero.read(comienzo.size()) == comienzo) {
        fichero.remove();
    }
}

/// Writes a new file, which nobody but the user can read: the temporary folder can be everybody's. Where
/// something else bears the name, a number is added to it. Gives the path.
QString Escribir(const QString& nombre, const QByteArray& contenido) {
    QString primera = nombre + u".log"_s;
    QuitarElAnterior(primera);
    QString ruta = primera;
    for (int intento = 2; intento <= kIntentos; ++intento) {
        QFile fichero(ruta);
        if (fichero.open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner)) {
            fichero.write(contenido);
            return ruta;
        }
        ruta = nombre + u" (%1).log"_s.arg(intento);
    }
    return primera;
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
    const QString nombre = pathTemporal() + u"Error"_s + ahora.toString(u"yy-MM-dd hh-mm-ss");
    const QString raya(kSubrayados, u'_');
    const QStringList lineas{kComienzo.toString() + ahora.toString(u"dd/MM/yy hh:mm:ss") + u" por el"_s,
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
    QByteArray contenido;
    for (const QString& linea : lineas) {
        contenido += EnBytes(linea + u"\r\n"_s);
    }
    QString ruta = Escribir(nombre, contenido);
    CerrarFicherosAbiertos();
    return ruta;
}
