#pragma once

// The steps of the start that need no window. `Main` runs them in its order; a restore runs the last two
// again, so they are safe to repeat.

/// Sets the three paths of the data files. The root is the program folder or, when that holds the word
/// "cliente" anywhere (in any case), the part in front of the separator before it: a program installed in
/// a client subfolder reads the data of the parent folder. Existence is not checked.
void InicializarTodo();

/// Has the data layer bring the user's store up to this version, under the hourglass. Where the server says
/// that the program must not go on with the file, the process ends at once; the result is then True.
bool Traspaso();

/// Loads general data, address of the update service, language and update setting.
void InicializarEntorno();
