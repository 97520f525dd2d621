#pragma once

// The state of the main window's commands, told from anywhere. Nothing happens while there is no main window.

/// Enables the commands with the state of the data and shows the recent declarants.
void Habilitar_menu();

/// Disables the commands while a form works alone on the frame; help stays.
void Deshabilitar_menu();
