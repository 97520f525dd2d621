#pragma once

#include <QString>

/// An empty, closed file of an unused name beside another one, in which that is made before it gets its name.
/// At the end of its life it is gone, journal included, unless it has been given its name.
///
/// Files that a killed process left behind under such a name go when the next one is made for the same file,
/// if they are older than a day.
class FicheroProvisional {
  public:
    /// Beside `ruta`. Raises 76 when the folder is missing, 75 when nothing can be written in it.
    explicit FicheroProvisional(const QString& ruta);
    ~FicheroProvisional();
    FicheroProvisional(const FicheroProvisional&) = delete;
    FicheroProvisional& operator=(const FicheroProvisional&) = delete;

    [[nodiscard]] const QString& Ruta() const { return m_ruta; }

  private:
    QString m_ruta;
};

/// The file that a path leads to once symbolic links are followed, there or not. What replaces a file by its
/// name works on this one, so that a link stays a link.
QString RutaReal(const QString& ruta);
