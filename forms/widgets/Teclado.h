#pragma once

class QWidget;

/// Waits until a window has the keyboard, when what stood above it has gone; at most a second. What is typed
/// meanwhile waits too: between two windows it would go nowhere. Nothing happens for none or a hidden one.
void DarTeclado(QWidget* ventana);
