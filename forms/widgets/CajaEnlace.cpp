#include "forms/widgets/CajaEnlace.h"

#include <QMouseEvent>

CajaEnlace::CajaEnlace(QWidget* padre) : QLineEdit(padre) {
    setReadOnly(true);
    setCursor(Qt::PointingHandCursor);
    PonerColorDeEnlace();
}

void CajaEnlace::PonerColorDeEnlace() {
    QPalette colores = palette();
    if (colores.text() != colores.link()) {
        colores.setBrush(QPalette::Text, colores.link());
        setPalette(colores);
    }
}

void CajaEnlace::changeEvent(QEvent* evento) {
    QLineEdit::changeEvent(evento);
    if (evento->type() == QEvent::PaletteChange) {
        PonerColorDeEnlace();
    }
}

void CajaEnlace::keyPressEvent(QKeyEvent* evento) {
    switch (evento->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            Q_EMIT pulsada();
            return;
        default:
            QLineEdit::keyPressEvent(evento);
    }
}

void CajaEnlace::mouseReleaseEvent(QMouseEvent* evento) {
    QLineEdit::mouseReleaseEvent(evento);
    if (evento->button() == Qt::LeftButton && !hasSelectedText() &&
        rect().contains(evento->position().toPoint())) {
        Q_EMIT pulsada();
    }
}
