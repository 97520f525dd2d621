#pragma once

#include <QString>

/// What the common library needs of the desktop for the on-line assistance. The forms fill it in at start;
/// tests put recorders in. `ventana` is the handle of the calling window, 0 for none.
class CanalAsistencia {
  public:
    CanalAsistencia() = default;
    CanalAsistencia(const CanalAsistencia&) = delete;
    CanalAsistencia& operator=(const CanalAsistencia&) = delete;
    virtual ~CanalAsistencia() = default;

    /// Opens a page of the authority in the user's browser.
    virtual void AbrirDireccion(const QString& direccion) = 0;
    /// Describes the service in the language of `idioma` (0 or 1000), with the address of the page that tells
    /// more of it. Modal to `ventana`; returns when the user has read it.
    virtual void MostrarInfo(qint16 idioma, const QString& direccion, qint32 ventana) = 0;
};

/// The channel in force. Raises 91 when none has been put in.
CanalAsistencia& Asistencia();

/// Puts a channel in, or takes it away with nullptr. The caller keeps it alive.
void FijarAsistencia(CanalAsistencia* asistencia);
