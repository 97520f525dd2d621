#pragma once

#include <QString>

// The user's browser. One implementation a system.

/// Path of the program that the desktop shows pages with; empty when there is none. A desktop
/// that has to be asked is waited for under the wait pointer, no longer than a second and a half.
QString BuscarNavegador();

/// Has that program show a page: the path of a file or a web address, given as one argument and never seen by
/// a command interpreter. `ventana` is the handle of the calling window, where the system wants it. What
/// becomes of the call is not told.
void AbrirConNavegador(const QString& programa, const QString& pagina, quintptr ventana = 0);
