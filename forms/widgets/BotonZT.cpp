#include "forms/widgets/BotonZT.h"

#include <QKeyEvent>
#include <QShortcutEvent>

BotonZT::BotonZT(QWidget* padre) : QPushButton(padre) {
    setAutoDefault(false);
    setFocusPolicy(Qt::StrongFocus);
}

bool BotonZT::event(QEvent* evento) {
    if (evento->type() == QEvent::Shortcut && !static_cast<QShortcutEvent*>(evento)->isAmbiguous()) {
        setFocus(Qt::ShortcutFocusReason);
        click();
        return true;
    }
    return QPushButton::event(evento);
}

void BotonZT::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
        click();
        return;
    }
    QPushButton::keyPressEvent(evento);
}
