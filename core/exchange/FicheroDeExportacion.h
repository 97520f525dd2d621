#pragma once

#include <QString>
#include <optional>

#include "core/base/FicheroProvisional.h"
#include "core/exchange/EscritorDeLineas.h"

/// The file of an export. It is written beside the one that it replaces and takes its name when it is whole
/// and on disk: a full disk, a kill or a power cut leaves the earlier export as it was.
///
/// What a failure cut short stays as far as it got: under its own name where there was no earlier file, and
/// beside it, under that name with ".incompleto" behind, where there was one.
class FicheroDeExportacion {
  public:
    /// Raises as `EscritorDeLineas`, with nothing changed. A device is written as it stands.
    explicit FicheroDeExportacion(const QString& ruta);
    ~FicheroDeExportacion();
    FicheroDeExportacion(const FicheroDeExportacion&) = delete;
    FicheroDeExportacion& operator=(const FicheroDeExportacion&) = delete;

    [[nodiscard]] EscritorDeLineas& Lineas() { return *m_escritor; }

    /// All is written: the file takes its name. Raises 61, 57 or 75 with file and cause.
    void Terminar();

  private:
    QString m_destino;
    std::optional<FicheroProvisional> m_provisional;
    std::optional<EscritorDeLineas> m_escritor;
};
