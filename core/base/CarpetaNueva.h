#pragma once

#include <QString>
#include <QStringList>

#include "core/base/ErrorZT.h"
#include "core/base/FicheroProvisional.h"

/// Makes a folder where it is missing, and those above it, whose names are on disk on return. The folder
/// itself is for those whom `lectores` names; those above it, where they are made too, are for those whom the
/// settings of the session name. One that is there stays as it is. Raises 61 where there is no room, `otro`
/// otherwise, with `ruta` and the cause.
void CrearCarpeta(const QString& ruta, NumError otro, Lectores lectores = Lectores::LosHabituales);

/// A folder that something may be put into, which is made while this lives. Of those that were missing
/// before, it and those above it, the ones that are empty at the end go again.
class CarpetaDePaso {
  public:
    explicit CarpetaDePaso(const QString& ruta);
    ~CarpetaDePaso();
    CarpetaDePaso(const CarpetaDePaso&) = delete;
    CarpetaDePaso& operator=(const CarpetaDePaso&) = delete;

  private:
    /// Those that were missing, from the inside out.
    QStringList m_faltaban;
};

/// Leaves a folder to its owner alone, as far as the file system can.
void CerrarCarpeta(const QString& ruta);
