#pragma once

#include <QByteArray>
#include <QString>

#include "core/base/FicherosAbiertos.h"

/// Writes a text file in the 8-bit code page, line by line. What has been written stays in the file, also
/// when a failure ends the work; a full disk leaves whole lines.
class EscritorDeLineas {
  public:
    /// Makes the file, or empties it. `destino` is the name that failures tell, `ruta` itself unless given.
    /// Raises as `FicheroZT`.
    explicit EscritorDeLineas(const QString& ruta, const QString& destino = {});
    ~EscritorDeLineas();
    EscritorDeLineas(const EscritorDeLineas&) = delete;
    EscritorDeLineas& operator=(const EscritorDeLineas&) = delete;

    /// Writes a line and its end, CR LF. Raises 20001 for a character outside the code page, and 61 or 57,
    /// with file and cause, when it cannot be written.
    void Escribir(const QString& linea);

    /// Brings all lines into the file. Raises as `Escribir`.
    void Volcar();
    /// The same, and has them on disk on return.
    void Asegurar();
    /// Brings all lines into the file and closes it. Raises as `Escribir`.
    void Cerrar();

  private:
    void VolcarLoQueQuepa() noexcept;

    QString m_destino;
    FicheroZT m_fichero;
    /// Whole lines that are not in the file yet.
    QByteArray m_pendiente;
};
