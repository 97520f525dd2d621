#pragma once

#include "core/base/CanalAsistencia.h"

/// The browser and the dialog of the real program for the on-line assistance.
class AsistenciaQt : public CanalAsistencia {
  public:
    void AbrirDireccion(const QString& direccion) override;
    void MostrarInfo(qint16 idioma, const QString& direccion, qint32 ventana) override;
};
