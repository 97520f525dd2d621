#pragma once

#include <QString>

#include "core/base/Tabla.h"

class EscritorDeLineas;
class PantallaDeImportacion;

// The import: stores the declarants of an exchange file.

/// The file of the faults of an import, in the program folder; not the log of failures.
[[nodiscard]] QString RutaDeErrores();

/// The whole run. Counts the lines of the file, stores the good ones, writes the faults of the others to
/// `RutaDeErrores()`, which it empties at its start, and leaves the results in
/// `oImportaciones().vBufferImportados`. A declarant whose NIF is stored already is replaced or ignored as
/// the user answers, or always replaced when the screen says so.
///
/// A failure is shown under the fixed name of the procedure that met it and ends the run: what has been
/// stored stays, and there are no results.
void Import(const QString& fichero, PantallaDeImportacion& pantalla);

/// Writes a line for each fault of a line of the file, in the language in force. `errores` is what `Validar`
/// gives. A code without a message repeats the text before.
void GrabarErrores(const Registro& errores, int linea, EscritorDeLineas& fichero, const QString& nif);
