#pragma once

#include <QStringList>
#include <functional>

#include "core/online/CanalActualizacion.h"
#include "tests/support/FicherosDePrueba.h"

/// A channel of the update check that downloads what the test says and writes down what it is asked.
class CanalDePrueba : public CanalActualizacion {
  public:
    bool DescargarEnFichero(const QString& direccion, const QString& fichero) override {
        pasos += QStringLiteral("Descargar");
        direcciones += direccion;
        if (alDescargar) {
            alDescargar();
        }
        if (escribe) {
            EscribirFichero(fichero, contenido);
        }
        return bien;
    }
    void MostrarSinConexion() override { Mostrar(QStringLiteral("frmZTSinConexion")); }
    void MostrarVersionCheck() override { Mostrar(QStringLiteral("frmZTVersionCheck")); }
    [[nodiscard]] bool PreferenciasVisible() const override { return preferencias; }

    /// What the service gives, whether it is written, and what the download says.
    QByteArray contenido;
    bool escribe = true;
    bool bien = true;
    bool preferencias = false;
    std::function<void()> alDescargar;
    std::function<void()> alMostrar;

    QStringList pasos;
    QStringList direcciones;

  private:
    void Mostrar(const QString& formulario) {
        pasos += formulario;
        if (alMostrar) {
            alMostrar();
        }
    }
};

/// A version file of the service.
inline QByteArray FicheroDeVersion(const QByteArray& version) {
    return "[informacion]\r\ncurrentversion=" + version +
           "\r\ndownloadurl=https://descargas.example/zelt\r\ndescripcion=Novedades de la versi\xF3n\r\n";
}
