#pragma once

#include <QString>

/// What the update check needs of the network and of the screen. The forms fill it in; tests give their own.
class CanalActualizacion {
  public:
    CanalActualizacion() = default;
    CanalActualizacion(const CanalActualizacion&) = delete;
    CanalActualizacion& operator=(const CanalActualizacion&) = delete;
    virtual ~CanalActualizacion() = default;

    /// Fetches an address into a file; False when that failed. Comes back within its time limit, whatever the
    /// service does.
    virtual bool DescargarEnFichero(const QString& direccion, const QString& fichero) = 0;
    /// Shows `frmZTSinConexion` and returns when it has gone.
    virtual void MostrarSinConexion() = 0;
    /// Shows `frmZTVersionCheck` and returns when it has gone.
    virtual void MostrarVersionCheck() = 0;
    /// Whether `frmZTPreferencias` is on the screen: the user himself has asked for the check.
    [[nodiscard]] virtual bool PreferenciasVisible() const = 0;
};
