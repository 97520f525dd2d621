#include "forms/widgets/Teclado.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QWidget>

void DarTeclado(QWidget* ventana) {
    constexpr int kPlazoMs = 1000;
    constexpr int kSosiegoMs = 60;
    const QPointer<QWidget> debajo = ventana;
    const auto espera = [&debajo] { return debajo && debajo->isVisible() && !debajo->isActiveWindow(); };
    if (!espera()) {
        return;
    }
    debajo->activateWindow();
    QTimer plazo;
    plazo.setSingleShot(true);
    plazo.start(kPlazoMs);
    // A window manager that sees a window go may still take the keyboard away once and give it back: it has
    // come when it stays for a while.
    QTimer sosiego;
    sosiego.setSingleShot(true);
    sosiego.start(kSosiegoMs);
    while (plazo.isActive() && (espera() || sosiego.isActive())) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents | QEventLoop::WaitForMoreEvents);
        if (espera()) {
            sosiego.start(kSosiegoMs);
        }
    }
}
