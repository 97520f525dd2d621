#include "forms/online/ActualizacionQt.h"

#include "core/online/FicheroLocal.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/NombresDeFormulario.h"

bool ActualizacionQt::DescargarEnFichero(const QString& direccion, const QString& fichero) {
    const auto contenido = DescargarPorModulo(direccion, m_limites, m_modulo);
    if (contenido) {
        EscribirEntero(fichero, *contenido);
    }
    return contenido.has_value();
}

void ActualizacionQt::MostrarSinConexion() { Formularios::MostrarModal(Forma::SinConexion); }

void ActualizacionQt::MostrarVersionCheck() { Formularios::MostrarModal(Forma::VersionCheck); }

bool ActualizacionQt::PreferenciasVisible() const { return Formularios::Visible(Forma::Preferencias); }
