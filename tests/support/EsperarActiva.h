#pragma once

#include <QTest>
#include <QWidget>

/// Waits until the window itself has the keyboard. The toolkit's own wait is content with a modal window
/// whose parent has it.
inline bool EsperarActiva(const QWidget* ventana) {
    return QTest::qWaitFor([ventana] { return ventana->isActiveWindow(); });
}
