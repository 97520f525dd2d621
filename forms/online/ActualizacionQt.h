#pragma once

#include "core/online/CanalActualizacion.h"
#include "forms/online/DescargaPorModulo.h"

/// The network and the dialogs of the real program for the update check.
class ActualizacionQt : public CanalActualizacion {
  public:
    explicit ActualizacionQt(const LimitesDeDescarga& limites = {},
                             const QString& modulo = RutaDelModuloDeRed())
        : m_limites(limites), m_modulo(modulo) {}

    bool DescargarEnFichero(const QString& direccion, const QString& fichero) override;
    void MostrarSinConexion() override;
    void MostrarVersionCheck() override;
    [[nodiscard]] bool PreferenciasVisible() const override;

  private:
    LimitesDeDescarga m_limites;
    QString m_modulo;
};
