#include "online/CajaEnlace.h"

#include <QMouseEvent>

CajaEnlace::CajaEnlace(QWidget* padre) : QLineEdit(padre) {
    setReadOnly(true);
    setCursor(Qt::PointingHandCursor);
    QPalette colores = palette();
    colores.setBrush(QPalette::Text, colores.link());
    setPalette(colores);
}

void CajaEnlace::keyPressEvent(QKeyEvent* evento) {
    switch (evento->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Space:
            emit pulsada();
            return;
        default:
            QLineEdit::keyPressEvent(evento);
    }
}

void CajaEnlace::mouseReleaseEvent(QMouseEvent* evento) {
    QLineEdit::mouseReleaseEvent(evento);
    if (evento->button() == Qt::LeftButton && !hasSelectedText() &&
        rect().contains(evento->position().toPoint())) {
        emit pulsada();
    }
}
