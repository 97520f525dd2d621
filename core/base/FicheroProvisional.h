#pragma once

#include <QString>
#include <memory>

class RetencionDeFichero;

/// For whom a file is: for the user alone, whatever the settings of his session, or for those whom these
/// settings name.
enum class Lectores { ElUsuario, LosHabituales };

/// An empty, closed file of an unused name beside another one, in which that is made before it gets its name.
/// At the end of its life it is gone, journal included, unless it has been given its name.
///
/// Files that a killed process left behind under such a name go when the next one is made for the same file,
/// unless a program still works on them.
class FicheroProvisional {
  public:
    /// Beside `ruta`. Raises 76 when the folder is missing, 75 when nothing can be written in it.
    explicit FicheroProvisional(const QString& ruta, Lectores lectores = Lectores::ElUsuario);
    ~FicheroProvisional();
    FicheroProvisional(const FicheroProvisional&) = delete;
    FicheroProvisional& operator=(const FicheroProvisional&) = delete;

    [[nodiscard]] const QString& Ruta() const { return m_ruta; }

  private:
    QString m_ruta;
    std::unique_ptr<RetencionDeFichero> m_retencion;
};

/// Removes the files of that kind that stand in a folder and that no program works on any longer, whatever
/// they were made for. What cannot be removed stays.
void QuitarProvisionales(const QString& carpeta);

/// The file that a path leads to once symbolic links are followed, there or not. What replaces a file by its
/// name works on this one, so that a link stays a link.
QString RutaReal(const QString& ruta);
