#pragma once

#include <QFocusEvent>

/// True for a move of the focus to another control of the program; going to another program, a menu or a
/// context menu is none.
bool DentroDelPrograma(const QFocusEvent& evento);
