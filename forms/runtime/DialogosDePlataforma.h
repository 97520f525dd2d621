#pragma once

#include <QString>

class QDialog;
class QWidget;

// The platform's own dialogs. They are no forms of the program: opening and closing them activates none.

/// Runs a dialog to its end and gives its result. The program's wait pointer, which stays in force, does not
/// lie over it.
int EjecutarDialogo(QDialog& dialogo);

/// Shows the message box with the exclamation icon over a window.
void MensajeDeExclamacion(QWidget& sobre, const QString& texto, const QString& titulo);
