#include "core/base/CatalogoDeTextos.h"

#include <QFile>
#include <QHash>
#include <array>
#include <atomic>

using namespace Qt::StringLiterals;

namespace {

using Par = std::array<QString, 2>;
using Offset = qint16 (*)();

QHash<QString, Par> LeerPropios() {
    QHash<QString, Par> tabla;
    for (const QString& linea : LineasDeRecurso(u":/textos/propios.txt"_s)) {
        const QStringList campos = linea.split(u'\t');
        tabla.insert(campos.value(0), Par{campos.value(1), campos.value(2)});
    }
    return tabla;
}

/// Failures are told by the threads that copies and PDFs are written in, too.
std::atomic<Offset>& FuenteDelIdioma() {
    static std::atomic<Offset> offset{[] { return qint16{0}; }};
    return offset;
}

}  // namespace

std::optional<QString> TextoPropioSiHay(const QString& clave, qint16 offset) {
    static const QHash<QString, Par> tabla = LeerPropios();
    const auto par = tabla.constFind(clave);
    if (par == tabla.constEnd()) {
        return std::nullopt;
    }
    return par->at(offset == 0 ? 0 : 1);
}

qint16 IdiomaEnVigor() { return FuenteDelIdioma().load()(); }

void FijarIdiomaEnVigor(qint16 (*offset)()) { FuenteDelIdioma() = offset; }

QStringList LineasDeRecurso(const QString& recurso) {
    QFile fichero(recurso);
    (void)fichero.open(QIODevice::ReadOnly);
    QStringList lineas = QString::fromUtf8(fichero.readAll()).split(u'\n');
    lineas.removeIf([](const QString& linea) { return linea.isEmpty() || linea.startsWith(u'#'); });
    return lineas;
}
