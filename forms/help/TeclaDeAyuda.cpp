#include "forms/help/TeclaDeAyuda.h"

#include <QApplication>
#include <QKeyEvent>

#include "forms/help/EjecutarAyuda.h"
#include "forms/runtime/Eventos.h"

namespace {

bool EsF1(const QEvent& evento) {
    if (evento.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& tecla = static_cast<const QKeyEvent&>(evento);
    return tecla.key() == Qt::Key_F1 && tecla.modifiers() == Qt::NoModifier;
}

}  // namespace

TeclaDeAyuda::TeclaDeAyuda(QWidget& marco) : QObject(&marco), m_marco(marco) {
    QApplication::instance()->installEventFilter(this);
}

bool TeclaDeAyuda::eventFilter(QObject* objeto, QEvent* evento) {
    // Keys come to the window first and then to its control; a menu that is open keeps its own.
    if (!EsF1(*evento) || !objeto->isWidgetType() || QApplication::activePopupWidget() != nullptr) {
        return QObject::eventFilter(objeto, evento);
    }
    Evento([this] { EjecutarAyudaDelFormulario(m_marco); });
    return true;
}
