#include "forms/help/TeclaDeAyuda.h"

#include <QApplication>
#include <QKeyEvent>

#include "forms/help/EjecutarAyuda.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace {

bool EsF1(const QEvent& evento) {
    if (evento.type() != QEvent::KeyPress) {
        return false;
    }
    const auto& tecla = static_cast<const QKeyEvent&>(evento);
    return tecla.key() == Qt::Key_F1 && tecla.modifiers() == Qt::NoModifier;
}

/// The window above which the help stands: the frame or, before it is there, the dialog that is in use. The
/// splash has none.
QWidget* DuenaDeLaAyuda() {
    if (Formularios::Cargado(Forma::MDIZT)) {
        return &Formularios::Obtener(Forma::MDIZT).Ventana();
    }
    return QApplication::activeModalWidget();
}

}  // namespace

TeclaDeAyuda::TeclaDeAyuda() { qApp->installEventFilter(this); }

bool TeclaDeAyuda::eventFilter(QObject* objeto, QEvent* evento) {
    // Keys come to the window first and then to its control; a menu that is open keeps its own.
    if (!EsF1(*evento) || !objeto->isWidgetType() || QApplication::activePopupWidget() != nullptr) {
        return QObject::eventFilter(objeto, evento);
    }
    QWidget* duena = DuenaDeLaAyuda();
    if (duena == nullptr) {
        return QObject::eventFilter(objeto, evento);
    }
    Evento([duena] { EjecutarAyudaDelFormulario(*duena); });
    return true;
}
