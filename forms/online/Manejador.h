#pragma once

#include <QWidget>

// Windows as the common library knows them: by a handle in a 32-bit integer.

/// Handle of a window. Where the system's own is wider, its lower half.
qint32 ManejadorDe(const QWidget& ventana);

/// The window of the program with that handle; nullptr when there is none.
QWidget* VentanaDe(qint32 manejador);
