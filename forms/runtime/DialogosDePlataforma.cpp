#include "forms/runtime/DialogosDePlataforma.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QScopeGuard>

#include "forms/widgets/Teclado.h"

using namespace Qt::StringLiterals;

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
    QMessageBox caja(QMessageBox::Warning, titulo, QString(), QMessageBox::Ok, &sobre);
    caja.setObjectName(u"MensajePlataforma"_s);
    caja.setTextFormat(Qt::PlainText);
    caja.setText(texto);
    EjecutarDialogo(caja);
}
