#pragma once

#include <QFile>
#include <QString>

/// The register of the files that the program holds open.
///
/// Writing the failure log closes all of them (docs/reglas.md, un-registro-por-segundo): an export or import
/// that raised the failure loses its file at that point. Who works on a file asks `Abierto()` first.
class FicheroZT {
  public:
    /// Opens and registers. Raises 53, 57, 70, 75 or 76 with the name of the file and the cause.
    FicheroZT(const QString& ruta, QIODevice::OpenMode modo);
    ~FicheroZT();
    FicheroZT(const FicheroZT&) = delete;
    FicheroZT& operator=(const FicheroZT&) = delete;

    [[nodiscard]] bool Abierto() const { return m_fichero.isOpen(); }
    /// The file. Raises 52 when the register has closed it.
    [[nodiscard]] QFile& Fichero();
    void Cerrar() { m_fichero.close(); }

  private:
    QFile m_fichero;
};

/// Closes every registered file.
void CerrarFicherosAbiertos();
