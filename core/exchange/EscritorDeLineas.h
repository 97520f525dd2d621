#pragma once

#include <QString>

#include "core/base/FicherosAbiertos.h"

/// Writes a text file in the 8-bit code page, line by line. What has been written stays in the file, also
/// when a failure ends the work.
class EscritorDeLineas {
  public:
    /// Makes the file, or empties it. Raises as `FicheroZT`.
    explicit EscritorDeLineas(const QString& ruta);

    /// Writes a line and its end, CR LF. Raises 20001 for a character outside the code page, and 61 or 57,
    /// with file and cause, when it cannot be written.
    void Escribir(const QString& linea);

    /// Brings all lines into the file and closes it. Raises as `Escribir`.
    void Cerrar();

  private:
    [[noreturn]] void Fallar();

    FicheroZT m_fichero;
};
