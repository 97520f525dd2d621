#include "forms/runtime/DialogosDePlataforma.h"

#include <QApplication>
#include <QPointer>
#include <QScopeGuard>

#include "forms/widgets/CajaDePlataforma.h"
#include "forms/widgets/Teclado.h"

int EjecutarDialogo(QDialog& dialogo) {
    const bool espera = QGuiApplication::overrideCursor() != nullptr;
    if (espera) {
        QGuiApplication::restoreOverrideCursor();
    }
    const auto salida = qScopeGuard([espera] {
        if (espera) {
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        }
    });
    const QPointer<QWidget> debajo = QApplication::activeWindow();
    const int resultado = dialogo.exec();
    DarTeclado(debajo);
    return resultado;
}

void MensajeDeExclamacion(QWidget& sobre, const QString& texto, const QString& titulo) {
    CajaDePlataforma caja(QMessageBox::Warning, titulo, texto, &sobre);
    EjecutarDialogo(caja);
}
