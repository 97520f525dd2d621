#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "core/base/FicheroProvisional.h"
#include "core/copies/CanalCopias.h"

// Checksums of copies (SHA-256). Each stands beside its file under the file's name and ".sha256", in the form
// that the tools of all systems check: the sum in hexadecimal digits, two blanks, the name of the file.

[[nodiscard]] QString RutaDeSuma(const QString& ruta);

/// Copies the file at `origen` over the one at `destino` and gives the sum of what it copied, in hexadecimal
/// digits. Raises 3024 or 3051 unless a regular file can be read, 3183 or 3043 when it cannot be written.
QByteArray CopiarContenido(const QString& origen, const QString& destino, const AvanceDeCopia& avance);

/// The sum of a file, in hexadecimal digits.
QByteArray SumaDeFichero(const QString& ruta);

/// The sum beside the file at `ruta`; nothing when there is none. What stands there and cannot be read as
/// one is given as the empty sum, which fits no file.
std::optional<QByteArray> SumaAnotada(const QString& ruta);

/// Raises unless `suma` is the one beside the file, or there is none.
void ExigirSuma(const QString& ruta, const QByteArray& suma);

/// The sum of the file at `ruta`, written under a provisional name beside it. All that can fail for want of
/// space or for the length of the name fails in the making.
class SumaPreparada {
  public:
    SumaPreparada(const QString& ruta, const QByteArray& suma);

    /// Gives it its name, in the place of the one that bears it, on disk on return.
    void Publicar() const;

  private:
    QString m_nombre;
    FicheroProvisional m_provisional;
};

/// Takes the sum beside a file away, on disk on return.
void QuitarSuma(const QString& ruta);
