#include "forms/widgets/BotonImagen.h"

#include <QKeyEvent>

BotonImagen::BotonImagen(QWidget* padre) : QToolButton(padre) {
    setAutoRaise(true);
    setFocusPolicy(Qt::ClickFocus);
    setIconSize(QSize(20, 20));
}

void BotonImagen::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QToolButton::keyPressEvent(evento);
}
