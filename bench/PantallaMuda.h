#pragma once

#include "core/base/Pantalla.h"

/// A screen for what is no part of the measure: notices are passed over, failures end the program.
class PantallaMuda : public CanalPantalla {
  public:
    void ShowError(const QString& /*formulario*/, const QString& evento,
                   const QString& descripcion) override {
        qFatal("%s: %s", qUtf8Printable(evento), qUtf8Printable(descripcion));
    }
    qint16 Mensaje(const QString& /*texto*/, const QString& /*titulo*/, bool /*unBoton*/) override {
        return kRespuestaAceptar;
    }
    void MostrarListaErrores(const Tabla& /*errores*/) override {}
    void MensajePlataforma(const QString& texto, bool /*esFallo*/) override {
        qFatal("%s", qUtf8Printable(texto));
    }
    void PonerPuntero(Puntero /*puntero*/) override {}
    void CederUnaVez() override {}
    void Pitar() override {}
};
