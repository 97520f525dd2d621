#include "forms/online/Manejador.h"

#include <QApplication>
#include <algorithm>

qint32 ManejadorDe(const QWidget& ventana) { return static_cast<qint32>(ventana.effectiveWinId()); }

QWidget* VentanaDe(qint32 manejador) {
    const QWidgetList ventanas = QApplication::topLevelWidgets();
    const auto esta = std::ranges::find_if(ventanas, [manejador](const QWidget* ventana) {
        return ventana->internalWinId() != 0 && ManejadorDe(*ventana) == manejador;
    });
    return esta == ventanas.end() ? nullptr : *esta;
}
