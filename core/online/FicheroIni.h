#pragma once

#include <QString>
#include <memory>

/// An INI file of the update service: untrusted input in the 8-bit code page. Names of sections and keys are
/// found in any case, and of those that are repeated the first counts; values come out as written, commas,
/// quotes and ";" included.
class FicheroIni {
  public:
    /// Most characters of a value; what goes beyond is cut off.
    static constexpr qsizetype kLargoMaximo = 1023;
    /// Most bytes of a file.
    static constexpr qint64 kTamanoMaximo = qint64{64} * 1024;

    /// Reads the file. Raises 53 when it is missing, 57 when it cannot be read and 5 when it is longer than
    /// the service's files can be.
    explicit FicheroIni(const QString& ruta);
    ~FicheroIni();
    FicheroIni(const FicheroIni&) = delete;
    FicheroIni& operator=(const FicheroIni&) = delete;

    /// The value of a key, without the blanks around it; empty when there is none.
    [[nodiscard]] QString Leer(const char* seccion, const char* clave) const;

  private:
    struct Contenido;
    std::unique_ptr<Contenido> m_contenido;
};
