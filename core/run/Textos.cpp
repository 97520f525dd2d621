#include "core/run/Textos.h"

#include <QFile>
#include <QHash>
#include <array>

#include "core/base/ErrorZT.h"
#include "core/run/Entorno.h"

using namespace Qt::StringLiterals;

namespace {

QStringList LineasDe(const QString& recurso) {
    QFile fichero(recurso);
    if (!fichero.open(QIODevice::ReadOnly)) {
        throw ErrorZT(NumError::NoExisteFichero, TextoDeError(NumError::NoExisteFichero) + u": "_s + recurso);
    }
    QStringList lineas = QString::fromUtf8(fichero.readAll()).split(u'\n');
    lineas.removeIf([](const QString& linea) { return linea.isEmpty() || linea.startsWith(u'#'); });
    return lineas;
}

QHash<int, QString> LeerTabla() {
    QHash<int, QString> tabla;
    for (const QString& linea : LineasDe(u":/textos/tabla.txt"_s)) {
        const auto blanco = linea.indexOf(u' ');
        tabla.insert(QStringView(linea).left(blanco).toInt(), linea.mid(blanco + 2).chopped(1));
    }
    return tabla;
}

using Par = std::array<QString, 2>;

QHash<QString, Par> LeerPropios() {
    QHash<QString, Par> tabla;
    for (const QString& linea : LineasDe(u":/textos/propios.txt"_s)) {
        const QStringList campos = linea.split(u'\t');
        tabla.insert(campos.value(0), Par{campos.value(1), campos.value(2)});
    }
    return tabla;
}

[[noreturn]] void Falta(const QString& cual) {
    throw ErrorZT(NumError::TextoInexistente,
                  TextoDeError(NumError::TextoInexistente) + u" '"_s + cual + u'\'');
}

}  // namespace

QString TextoDeFila(int fila) {
    static const QHash<int, QString> tabla = LeerTabla();
    const auto texto = tabla.constFind(fila);
    if (texto == tabla.constEnd()) {
        Falta(QString::number(fila));
    }
    return *texto;
}

QString TextoEn(Id id, qint16 offset) { return TextoDeFila(static_cast<int>(id) + offset); }

QString Texto(Id id) { return TextoEn(id, Entorno().OffsetIdioma); }

QString IDI(const QString& castellano, const QString& euskera) {
    return Entorno().OffsetIdioma == 0 ? castellano : euskera;
}

QString TextoPropio(QStringView clave) { return TextoPropioDe(clave, Entorno().OffsetIdioma); }

QString TextoPropioDe(QStringView clave, qint16 offset) {
    const std::optional<QString> texto = TextoPropioSiHay(clave.toString(), offset);
    if (!texto) {
        Falta(clave.toString());
    }
    return *texto;
}

std::optional<QString> TextoPropioSiHay(const QString& clave, qint16 offset) {
    static const QHash<QString, Par> tabla = LeerPropios();
    const auto par = tabla.constFind(clave);
    if (par == tabla.constEnd()) {
        return std::nullopt;
    }
    return par->at(offset == 0 ? 0 : 1);
}
