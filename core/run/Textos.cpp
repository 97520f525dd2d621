#include "core/run/Textos.h"

#include <QHash>

#include "core/base/ErrorZT.h"
#include "core/run/Entorno.h"

using namespace Qt::StringLiterals;

namespace {

QHash<int, QString> LeerTabla() {
    QHash<int, QString> tabla;
    for (const QString& linea : LineasDeRecurso(u":/textos/tabla.txt"_s)) {
        const auto blanco = linea.indexOf(u' ');
        tabla.insert(QStringView(linea).left(blanco).toInt(), linea.mid(blanco + 2).chopped(1));
    }
    return tabla;
}

}  // namespace

QString TextoDeFila(int fila) {
    static const QHash<int, QString> tabla = LeerTabla();
    const auto texto = tabla.constFind(fila);
    if (texto == tabla.constEnd()) {
        throw ErrorZT(NumError::TextoInexistente,
                      TextoDeError(NumError::TextoInexistente) + u" '%1'"_s.arg(fila));
    }
    return *texto;
}

QString TextoEn(Id id, qint16 offset) { return TextoDeFila(static_cast<int>(id) + offset); }

QString Texto(Id id) { return TextoEn(id, Entorno().OffsetIdioma); }

QString IDI(const QString& castellano, const QString& euskera) {
    return Entorno().OffsetIdioma == 0 ? castellano : euskera;
}
