#include "shell/PantallaQt.h"

#include <QApplication>
#include <QMessageBox>

#include "shell/Formularios.h"
#include "shell/frmZTGestErrores.h"
#include "shell/frmZTListaErrores.h"
#include "shell/frmZTMsgBox.h"

void PantallaQt::ShowError(const QString& formulario, const QString& evento, const QString& descripcion) {
    ElFormulario<frmZTGestErrores>().Mostrar(formulario, evento, descripcion);
}

qint16 PantallaQt::Mensaje(const QString& texto, const QString& titulo, bool unBoton) {
    return ElFormulario<frmZTMsgBox>().Preguntar(texto, titulo, unBoton);
}

void PantallaQt::MostrarListaErrores(const Tabla& errores) {
    ElFormulario<frmZTListaErrores>().ListaErrores(errores);
    Formularios::MostrarModal(frmZTListaErrores::kNombre.toString());
}

void PantallaQt::MensajePlataforma(const QString& texto) {
    QMessageBox caja(QMessageBox::Critical, QStringLiteral("ZELT"), QString(), QMessageBox::Ok,
                     QApplication::activeWindow());
    caja.setObjectName(QStringLiteral("MensajePlataforma"));
    // Descriptions carry names of files and answers of services: text, never markup.
    caja.setTextFormat(Qt::PlainText);
    caja.setText(texto);
    caja.exec();
}

void PantallaQt::PonerPuntero(Puntero puntero) {
    const bool puesto = QGuiApplication::overrideCursor() != nullptr;
    if (puntero == Puntero::Espera && !puesto) {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else if (puntero == Puntero::Normal && puesto) {
        QGuiApplication::restoreOverrideCursor();
    }
}

void PantallaQt::CederUnaVez() { QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents); }
