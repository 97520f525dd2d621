#include "forms/runtime/MarcaDeCancelar.h"

#include <QAbstractButton>
#include <QKeyEvent>

MarcaDeCancelar::MarcaDeCancelar(QAbstractButton& boton, QAbstractButton& imagen)
    : QObject(&boton), m_boton(boton), m_imagen(imagen) {
    boton.installEventFilter(this);
    imagen.installEventFilter(this);
}

bool MarcaDeCancelar::Puesta() const {
    // The toolkit moves the focus first and delivers the press of the mouse or the access key after that. At
    // the moment when a box loses it, though, the button has it already.
    return m_puesta || m_boton.hasFocus() || m_imagen.hasFocus();
}

bool MarcaDeCancelar::eventFilter(QObject* objeto, QEvent* evento) {
    switch (evento->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::Shortcut:
            m_puesta = true;
            break;
        case QEvent::KeyPress: {
            const int tecla = static_cast<const QKeyEvent*>(evento)->key();
            m_puesta = m_puesta || tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
            break;
        }
        default:
            break;
    }
    return QObject::eventFilter(objeto, evento);
}
