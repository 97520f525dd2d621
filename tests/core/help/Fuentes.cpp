#include "tests/core/help/Fuentes.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <algorithm>

#include "tests/support/FicherosDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

/// Place after the string that begins at `i`; `i` where none begins.
qsizetype TrasLiteral(const QString& fuente, qsizetype i) {
    static const QRegularExpression literal(uR"x("(?:[^"\\\n]|\\.)*")x"_s);
    const auto hallado = literal.match(fuente, i, QRegularExpression::NormalMatch,
                                       QRegularExpression::AnchorAtOffsetMatchOption);
    return hallado.hasMatch() ? hallado.capturedEnd() : i;
}

/// What stands between the bracket before `i` and its fellow, parted at the commas of the first level.
QStringList Partes(const QString& fuente, qsizetype i) {
    QStringList partes{QString()};
    for (int nivel = 0; i < fuente.size();) {
        const qsizetype fin = TrasLiteral(fuente, i);
        if (fin > i) {
            partes.last() += fuente.sliced(i, fin - i);
            i = fin;
            continue;
        }
        const QChar c = fuente.at(i++);
        nivel += static_cast<int>(u"({["_s.contains(c)) - static_cast<int>(u")}]"_s.contains(c));
        if (nivel < 0) {
            break;
        }
        if (nivel == 0 && c == u',') {
            partes += QString();
        } else {
            partes.last() += c;
        }
    }
    return partes;
}

QString SinComentarios(const QString& fuente) {
    static const QRegularExpression comentario(uR"x("(?:[^"\\\n]|\\.)*"|(//[^\n]*))x"_s);
    QString texto;
    qsizetype desde = 0;
    for (auto i = comentario.globalMatch(fuente); i.hasNext();) {
        const auto uno = i.next();
        if (uno.hasCaptured(1)) {
            texto += fuente.sliced(desde, uno.capturedStart() - desde);
            desde = uno.capturedEnd();
        }
    }
    return texto + fuente.sliced(desde);
}

}  // namespace

QList<Fuente> Fuentes(const QStringList& carpetas, const QStringList& nombres) {
    const QString raiz = QStringLiteral(ZELT_FUENTES) + u'/';
    QList<Fuente> fuentes;
    for (const QString& carpeta : carpetas) {
        QDirIterator ficheros(raiz + carpeta, nombres, QDir::Files, QDirIterator::Subdirectories);
        while (ficheros.hasNext()) {
            const QString ruta = ficheros.next();
            fuentes += {ruta.mid(raiz.size()), QString::fromUtf8(LeerFichero(ruta))};
        }
    }
    std::ranges::sort(fuentes, {}, &Fuente::ruta);
    return fuentes;
}

QStringList Literales(const QString& fuente) {
    static const QRegularExpression literal(uR"x(u?"((?:[^"\\\n]|\\.)*)"(?:_s)?)x"_s);
    QStringList literales;
    qsizetype fin = -1;
    for (auto i = literal.globalMatch(fuente); i.hasNext();) {
        const auto uno = i.next();
        QString texto = uno.captured(1);
        texto.replace(u"\\r\\n"_s, u" "_s).replace(u"\\\""_s, u"\""_s);
        const bool sigue =
            fin >= 0 && QStringView(fuente).sliced(fin, uno.capturedStart() - fin).trimmed().isEmpty();
        if (sigue) {
            literales.last() += texto;
        } else {
            literales += texto;
        }
        fin = uno.capturedEnd();
    }
    return literales;
}

QList<QStringList> Argumentos(const QString& fuente, const QString& nombre) {
    const QRegularExpression llamada(u"\\b"_s + nombre + u"[({]"_s);
    const QString ordenes = SinComentarios(fuente);
    QList<QStringList> argumentos;
    for (auto i = llamada.globalMatch(ordenes); i.hasNext();) {
        argumentos += Partes(ordenes, i.next().capturedEnd());
    }
    return argumentos;
}
