#include "forms/messages/PantallaQt.h"

#include <QApplication>
#include <utility>

#include "forms/messages/frmZTGestErrores.h"
#include "forms/messages/frmZTListaErrores.h"
#include "forms/messages/frmZTMsgBox.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "forms/widgets/CajaDePlataforma.h"
#include "forms/widgets/Teclado.h"

namespace {

void MostrarMensaje(const QString& texto, QMessageBox::Icon icono) {
    CajaDePlataforma caja(icono, QStringLiteral("ZELT"), texto, QApplication::activeWindow());
    caja.exec();
    DarTeclado(caja.parentWidget());
}

}  // namespace

void PantallaQt::ShowError(const QString& formulario, const QString& evento, const QString& descripcion) {
    ElFormulario<frmZTGestErrores>().Mostrar(formulario, evento, descripcion);
}

qint16 PantallaQt::Mensaje(const QString& texto, const QString& titulo, bool unBoton) {
    return ElFormulario<frmZTMsgBox>().Preguntar(texto, titulo, unBoton);
}

void PantallaQt::MostrarListaErrores(const Tabla& errores) {
    ElFormulario<frmZTListaErrores>().ListaErrores(errores);
    Formularios::MostrarModal(Forma::ListaErrores);
}

void PantallaQt::MensajePlataforma(const QString& texto, bool esFallo) {
    MostrarMensaje(texto, esFallo ? QMessageBox::Critical : QMessageBox::NoIcon);
}

void PantallaQt::MensajePlataformaConCausa(const QString& texto, const QString& causa) {
    MostrarMensaje(causa.isEmpty() ? texto : texto + QStringLiteral("\n\n") + causa, QMessageBox::Critical);
}

void PantallaQt::PonerPuntero(Puntero puntero) {
    const bool puesto = QGuiApplication::overrideCursor() != nullptr;
    if (puntero == Puntero::Espera && !puesto) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (puntero == Puntero::Normal && puesto) {
        QGuiApplication::restoreOverrideCursor();
    }
}

void PantallaQt::Pitar() { QApplication::beep(); }

void PantallaQt::CederUnaVez() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }

// Painted at once and not through the event loop, in which timers and activations could ask the store that is
// being waited for.
void PantallaQt::EsperarAOtro(bool esperando) {
    if (!esperando) {
        if (std::exchange(m_punteroDeEspera, false)) {
            PonerPuntero(Puntero::Normal);
        }
        return;
    }
    if (QGuiApplication::overrideCursor() == nullptr) {
        PonerPuntero(Puntero::Espera);
        m_punteroDeEspera = true;
    }
    for (QWidget* ventana : QApplication::topLevelWidgets()) {
        if (ventana->isVisible()) {
            ventana->repaint();
        }
    }
}
