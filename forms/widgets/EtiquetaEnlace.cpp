#include "forms/widgets/EtiquetaEnlace.h"

#include <QKeyEvent>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace {

/// Room around the text for the frame of the focus.
constexpr int kMargen = 2;

}  // namespace

EtiquetaEnlace::EtiquetaEnlace(QWidget* padre) : QAbstractButton(padre) {
    QFont subrayada = font();
    subrayada.setUnderline(true);
    setFont(subrayada);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize EtiquetaEnlace::sizeHint() const {
    return fontMetrics().size(Qt::TextShowMnemonic, text()) + QSize(2 * kMargen, 2 * kMargen);
}

void EtiquetaEnlace::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QAbstractButton::keyPressEvent(evento);
}

void EtiquetaEnlace::paintEvent(QPaintEvent*) {
    QStylePainter pintor(this);
    pintor.drawItemText(rect().adjusted(kMargen, kMargen, -kMargen, -kMargen),
                        Qt::AlignLeading | Qt::AlignVCenter | Qt::TextShowMnemonic, palette(), isEnabled(),
                        text(), QPalette::Link);
    if (hasFocus()) {
        QStyleOptionFocusRect foco;
        foco.initFrom(this);
        pintor.drawPrimitive(QStyle::PE_FrameFocusRect, foco);
    }
}
