#include "forms/runtime/DialogosDePlataforma.h"

#include <QGuiApplication>
#include <QMessageBox>
#include <QScopeGuard>

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
    return dialogo.exec();
}

void MensajeDeExclamacion(QWidget& sobre, const QString& texto, const QString& titulo) {
    QMessageBox caja(QMessageBox::Warning, titulo, QString(), QMessageBox::Ok, &sobre);
    caja.setObjectName(u"MensajePlataforma"_s);
    caja.setTextFormat(Qt::PlainText);
    caja.setText(texto);
    EjecutarDialogo(caja);
}
