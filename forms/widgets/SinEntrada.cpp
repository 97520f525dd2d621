#include "forms/widgets/SinEntrada.h"

#include <QApplication>
#include <QEvent>

namespace {

int& Vivas() {
    static int vivas = 0;
    return vivas;
}

bool EsEntrada(QEvent::Type tipo) {
    switch (tipo) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::NonClientAreaMouseButtonPress:
        case QEvent::NonClientAreaMouseButtonRelease:
        case QEvent::NonClientAreaMouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::InputMethod:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TabletPress:
        case QEvent::TabletRelease:
        case QEvent::DragEnter:
        case QEvent::Drop:
        case QEvent::Close:
            return true;
        default:
            return false;
    }
}

}  // namespace

SinEntrada::SinEntrada() {
    ++Vivas();
    qApp->installEventFilter(this);
}

SinEntrada::~SinEntrada() {
    Ceder();
    --Vivas();
}

bool SinEntrada::Activa() { return Vivas() > 0; }

void SinEntrada::Ceder() { QCoreApplication::processEvents(); }

bool SinEntrada::eventFilter(QObject* objeto, QEvent* evento) {
    // A window that the program closes by itself is none of the user's doing.
    const bool delUsuario = evento->type() != QEvent::Close || evento->spontaneous();
    if (!delUsuario || !EsEntrada(evento->type()) || QApplication::activeModalWidget() != nullptr) {
        return QObject::eventFilter(objeto, evento);
    }
    evento->ignore();
    return true;
}
