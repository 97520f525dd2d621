#pragma once

#include "core/base/Pantalla.h"

/// The screen channel of the real program: forms, message boxes and the mouse pointer of the toolkit.
class PantallaQt : public CanalPantalla {
  public:
    void ShowError(const QString& formulario, const QString& evento, const QString& descripcion) override;
    qint16 Mensaje(const QString& texto, const QString& titulo, bool unBoton) override;
    void MostrarListaErrores(const Tabla& errores) override;
    void MensajePlataforma(const QString& texto, bool esFallo) override;
    void MensajePlataformaConCausa(const QString& texto, const QString& causa) override;
    void PonerPuntero(Puntero puntero) override;
    void CederUnaVez() override;
    void Pitar() override;
    void EsperarAOtro(bool esperando) override;

  private:
    /// The wait pointer of a wait for another program: only what it put on comes off with it.
    bool m_punteroDeEspera = false;
};
