#include "core/help/TemasDeAyuda.h"

#include <QFile>
#include <QXmlStreamReader>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kAntesDelFragmento = 30;
constexpr qsizetype kLargoDelFragmento = 90;

QString Leer(const QString& ruta) {
    QFile fichero(ruta);
    return fichero.open(QIODevice::ReadOnly) ? QString::fromUtf8(fichero.readAll()) : QString();
}

TemaDeAyuda Tema(const QString& linea) {
    TemaDeAyuda tema;
    while (tema.nivel < linea.size() && linea.at(tema.nivel) == u'\t') {
        ++tema.nivel;
    }
    const QStringList campos = linea.mid(tema.nivel).trimmed().split(u'\t');
    tema.fichero = campos.value(0);
    tema.titulo = campos.value(1);
    tema.formularios = campos.value(2).split(u',', Qt::SkipEmptyParts);
    return tema;
}

/// Elements after which the words that follow stand apart.
bool EsBloque(QStringView elemento) {
    static const QStringList enLinea{u"a"_s, u"b"_s, u"cite"_s, u"code"_s, u"em"_s, u"i"_s, u"kbd"_s};
    return !enLinea.contains(elemento);
}

/// The words around a place, whole ones, with dots where the text goes on.
QString Fragmento(const QString& texto, qsizetype lugar) {
    qsizetype desde = std::max<qsizetype>(0, lugar - kAntesDelFragmento);
    if (desde > 0) {
        desde = std::min(texto.indexOf(u' ', desde) + 1, lugar);
    }
    qsizetype hasta = std::min(texto.size(), desde + kLargoDelFragmento);
    if (hasta < texto.size()) {
        hasta = std::max(texto.lastIndexOf(u' ', hasta), lugar);
    }
    return (desde > 0 ? u"… "_s : QString()) + texto.sliced(desde, hasta - desde) +
           (hasta < texto.size() ? u" …"_s : QString());
}

}  // namespace

TemasDeAyuda::TemasDeAyuda(QString carpeta) : m_carpeta(std::move(carpeta)) {
    for (const QString& linea : Leer(m_carpeta + u"/contenido.txt"_s).split(u'\n')) {
        if (!linea.trimmed().isEmpty()) {
            m_temas += Tema(linea);
        }
    }
}

QString TemasDeAyuda::TemaDeFormulario(const QString& formulario) const {
    const auto tema = std::ranges::find_if(
        m_temas, [&](const TemaDeAyuda& t) { return t.formularios.contains(formulario); });
    return tema == m_temas.end() ? QString() : tema->fichero;
}

QList<HallazgoDeAyuda> TemasDeAyuda::Buscar(const QString& texto) {
    const QString buscado = PlegarTexto(texto.simplified());
    if (std::ranges::none_of(buscado, [](QChar c) { return c.isLetterOrNumber(); })) {
        return {};
    }
    if (m_textos.isEmpty()) {
        std::ranges::transform(m_temas, std::back_inserter(m_textos), [this](const TemaDeAyuda& tema) {
            return TextoDelTema(m_carpeta + u'/' + tema.fichero);
        });
    }
    QList<HallazgoDeAyuda> hallazgos;
    for (qsizetype i = 0; i < m_temas.size(); ++i) {
        const QString plegado = PlegarTexto(m_textos.at(i));
        const auto veces = static_cast<int>(plegado.count(buscado));
        if (veces > 0) {
            hallazgos += {m_temas.at(i), veces, Fragmento(m_textos.at(i), plegado.indexOf(buscado))};
        }
    }
    return hallazgos;
}

QString PlegarTexto(QString texto) {
    for (QChar& c : texto) {
        const QString partes = c.decomposition();
        c = (partes.isEmpty() ? c : partes.front()).toLower();
    }
    return texto;
}

QString TextoDelTema(const QString& ruta) {
    QXmlStreamReader lector(Leer(ruta));
    QString texto;
    bool enCuerpo = false;
    while (!lector.atEnd()) {
        lector.readNext();
        if (lector.isStartElement() && lector.name() == u"body") {
            enCuerpo = true;
        } else if (enCuerpo && lector.isCharacters()) {
            texto += lector.text();
        } else if (enCuerpo && EsBloque(lector.name())) {
            texto += u' ';
        }
    }
    return texto.simplified();
}
