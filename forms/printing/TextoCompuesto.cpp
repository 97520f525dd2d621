#include "forms/printing/TextoCompuesto.h"

#include <QFont>
#include <QFontMetricsF>
#include <QTextOption>

#include "forms/printing/UnidadesDePapel.h"

namespace {

QFont LetraDePapel(const LetraDeImpreso& letra) {
    QFont fuente(letra.nombre);
    fuente.setPixelSize(qRound(letra.puntos * kUnidadesPorPunto));
    fuente.setBold(letra.negrita);
    // Fitting to the dots of a screen would change the widths.
    fuente.setHintingPreference(QFont::PreferNoHinting);
    return fuente;
}

}  // namespace

TextoCompuesto::TextoCompuesto(const LetraDeImpreso& letra, const QString& texto)
    : m_linea(texto, LetraDePapel(letra)) {
    QTextOption opciones;
    opciones.setWrapMode(QTextOption::NoWrap);
    opciones.setFlags(QTextOption::IncludeTrailingSpaces);
    m_linea.setTextOption(opciones);
    m_linea.setCacheEnabled(true);
    m_linea.beginLayout();
    const QTextLine linea = m_linea.createLine();
    m_linea.endLayout();
    m_ancho = linea.isValid() ? linea.naturalTextWidth() / kUnidadesPorMilimetro : 0;
    m_alto = QFontMetricsF(m_linea.font()).height() / kUnidadesPorMilimetro;
}

void TextoCompuesto::Pintar(QPainter& pintor, QPointF lugar) const {
    m_linea.draw(&pintor, lugar * kUnidadesPorMilimetro);
}
