#include "forms/runtime/SegundoClic.h"

#include <QCoreApplication>
#include <QEvent>

SegundoClic::SegundoClic(QObject* padre) : QObject(padre) { padre->installEventFilter(this); }

void SegundoClic::Tragar() {
    if (qApp->findChild<SegundoClic*>(QString(), Qt::FindDirectChildrenOnly) == nullptr) {
        new SegundoClic(qApp);
    }
}

bool SegundoClic::eventFilter(QObject* objeto, QEvent* evento) {
    switch (evento->type()) {
        case QEvent::MouseButtonDblClick:
            // Taken from the window already: a control would get the focus before it gets the event.
            m_apretado = true;
            evento->accept();
            return true;
        case QEvent::MouseButtonRelease:
            if (!m_apretado) {
                break;
            }
            evento->accept();
            Terminar();
            return true;
        case QEvent::MouseButtonPress:
            // The window gets one for the second half too, its controls do not.
            if (objeto->isWidgetType()) {
                Terminar();
            }
            break;
        default:
            break;
    }
    return QObject::eventFilter(objeto, evento);
}

void SegundoClic::Terminar() {
    qApp->removeEventFilter(this);
    setParent(nullptr);
    deleteLater();
}
