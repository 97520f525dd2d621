#include "forms/widgets/Teclado.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QWidget>

void DarTeclado(QWidget* ventana) {
    constexpr int kPlazoMs = 1000;
    const QPointer<QWidget> debajo = ventana;
    const auto espera = [&debajo] { return debajo && debajo->isVisible() && !debajo->isActiveWindow(); };
    if (!espera()) {
        return;
    }
    debajo->activateWindow();
    QTimer plazo;
    plazo.setSingleShot(true);
    plazo.start(kPlazoMs);
    while (espera() && plazo.isActive()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
    }
}
