#pragma once

#include <QString>
#include <QStringList>

#include "core/base/FicheroProvisional.h"

/// Makes a folder where it is missing, and those above it, whose names are on disk on return. The folder
/// itself is for those whom `lectores` names; those above it, where they are made too, are for those whom the
/// settings of the session name. One that is there stays as it is. False when it cannot be made.
[[nodiscard]] bool CrearCarpeta(const QString& ruta, Lectores lectores = Lectores::LosHabituales);

/// A folder that something may be put into: made where it is missing, and those above it. Of those that it
/// has made the ones that are empty at its end go again.
class CarpetaDePaso {
  public:
    explicit CarpetaDePaso(const QString& ruta);
    ~CarpetaDePaso();
    CarpetaDePaso(const CarpetaDePaso&) = delete;
    CarpetaDePaso& operator=(const CarpetaDePaso&) = delete;

    /// Whether the folder is there.
    [[nodiscard]] bool Esta() const { return m_esta; }

  private:
    /// Those that were missing, from the inside out.
    QStringList m_faltaban;
    bool m_esta;
};

/// Leaves a folder to its owner alone, as far as the file system can.
void CerrarCarpeta(const QString& ruta);
