#pragma once

#include <sys/stat.h>

#include <QString>

/// The rights that the settings of the session take away from new files, for its life.
class MascaraDePermisos {
  public:
    explicit MascaraDePermisos(mode_t quitados) : m_antes(umask(quitados)) {}
    ~MascaraDePermisos() { umask(m_antes); }
    MascaraDePermisos(const MascaraDePermisos&) = delete;
    MascaraDePermisos& operator=(const MascaraDePermisos&) = delete;

  private:
    mode_t m_antes;
};

/// The rights of what stands at a path, in the system's digits; 0 where nothing does.
inline mode_t PermisosDe(const QString& ruta) {
    struct stat datos {};
    return stat(qUtf8Printable(ruta), &datos) == 0 ? datos.st_mode & 0777U : 0;
}
