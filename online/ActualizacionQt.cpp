#include "online/ActualizacionQt.h"

#include "online/FicheroLocal.h"
#include "online/frmZTPreferencias.h"
#include "online/frmZTSinConexion.h"
#include "online/frmZTVersionCheck.h"
#include "shell/Formularios.h"

bool ActualizacionQt::Descargar(const QString& direccion, const QString& fichero) {
    const auto contenido = DescargarPorModulo(direccion, m_limites, m_modulo);
    if (contenido) {
        EscribirEntero(fichero, *contenido);
    }
    return contenido.has_value();
}

void ActualizacionQt::MostrarSinConexion() {
    Formularios::MostrarModal(frmZTSinConexion::kNombre.toString());
}

void ActualizacionQt::MostrarVersionCheck() {
    Formularios::MostrarModal(frmZTVersionCheck::kNombre.toString());
}

bool ActualizacionQt::PreferenciasVisible() const {
    return Formularios::Visible(frmZTPreferencias::kNombre.toString());
}
