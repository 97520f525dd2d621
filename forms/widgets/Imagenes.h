#pragma once

#include <QIcon>
#include <QString>

// The image lists of the main window. Numbers count from 1; a number outside a list raises 9.

/// The small list: arrows, buttons and their grey twins.
QIcon ilsMDI16(int numero);
/// The large list: 1 the program, 2 notice, 3 question, 4 down arrow, 5 the same with the focus.
QIcon ilsMDI32(int numero);
/// The list of the tool bar, by key of the button.
QIcon ilsMDI16_(const QString& clave);
/// The icon of all windows, which the application object hands to them.
QIcon IconoDelPrograma();
