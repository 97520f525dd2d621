#pragma once

#include <functional>

#include "core/services/RevisionDeFondo.h"

// The steps of the start that need no window. `Main` runs them in its order; a restore runs the last two
// again, so they are safe to repeat.

/// Sets the three paths of the data files. The root is the program folder or, when that holds the word
/// "cliente" anywhere (in any case), the part in front of the separator before it: a program installed in
/// a client subfolder reads the data of the parent folder. Existence is not checked.
void InicializarTodo();

/// Has the data layer bring the user's store up to this version, under the hourglass. Where the server says
/// that the program must not go on with the file, the process ends at once; the result is then True.
bool Traspaso();

/// Whether the failure tells of damage in the user's store.
bool EsDanoDelAlmacen(const ErrorZT& error);

/// Offers the automatic copies because of damage that has shown after `Traspaso`. When the user goes back to
/// one, the store is brought up, the environment is loaded anew, and the result is True; otherwise the
/// process ends at once.
bool VolverTrasDano(const ErrorZT& dano);

/// Runs a step of the start, and once more each time that damage has shown in it and the user has gone back
/// to a copy. False when the process ends. Other failures climb on.
bool ConVuelta(const std::function<void()>& paso);

/// The check of the whole store behind the splash.
RevisionDeFondo& oRevision();

/// Raises what that check has found.
void ExigirAlmacenSano();

/// Loads general data, address of the update service, language and update setting.
void InicializarEntorno();
