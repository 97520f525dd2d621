#include "forms/widgets/EtiquetaDeRuta.h"

#include <QMouseEvent>
#include <QStyle>
#include <QStylePainter>
#include <algorithm>

namespace {

/// Letters of a path that are always seen.
constexpr int kLetras = 24;

}  // namespace

EtiquetaDeRuta::EtiquetaDeRuta(QWidget* padre) : QLabel(padre) {
    setTextFormat(Qt::PlainText);
    setMouseTracking(true);
}

QSize EtiquetaDeRuta::minimumSizeHint() const {
    const QSize entera = QLabel::minimumSizeHint();
    return {std::min(entera.width(), kLetras * fontMetrics().averageCharWidth()), entera.height()};
}

void EtiquetaDeRuta::mouseMoveEvent(QMouseEvent* evento) {
    QLabel::mouseMoveEvent(evento);
    Q_EMIT MouseMove();
}

void EtiquetaDeRuta::paintEvent(QPaintEvent*) {
    QStylePainter pintor(this);
    const QString visible = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
    pintor.drawItemText(contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(), visible,
                        foregroundRole());
}
