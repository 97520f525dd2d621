#pragma once

#include <QFile>
#include <QString>
#include <functional>
#include <utility>

/// The register of the files that the program holds open.
///
/// Writing the failure log closes all of them (docs/reglas.md, un-registro-por-segundo): an export or import
/// that raised the failure loses its file at that point. Who works on a file asks `Abierto()` first.
class FicheroZT {
  public:
    /// Opens and registers. Raises 53, 57, 61, 70, 75 or 76 with the cause and the name of the file, or that
    /// of `destino` for one that is written under another name first.
    FicheroZT(const QString& ruta, QIODevice::OpenMode modo, const QString& destino = {});
    ~FicheroZT();
    FicheroZT(const FicheroZT&) = delete;
    FicheroZT& operator=(const FicheroZT&) = delete;

    [[nodiscard]] bool Abierto() const { return m_fichero.isOpen(); }
    /// The file. Raises 52 when the register has closed it.
    [[nodiscard]] QFile& Fichero();
    /// What is still to be written when the register closes the file; it must not raise.
    void AntesDeQueLoCierren(std::function<void()> cuerpo) { m_antes = std::move(cuerpo); }
    void Cerrar() { m_fichero.close(); }

  private:
    friend void CerrarFicherosAbiertos();

    QFile m_fichero;
    std::function<void()> m_antes;
};

/// Closes every registered file.
void CerrarFicherosAbiertos();
