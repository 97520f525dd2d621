#pragma once

#include "core/base/Pantalla.h"
#include "tests/support/EntornoDePrueba.h"

/// A screen in force for its life that counts the steps of the waits for another program, and their ends.
class PantallaQueEspera : public PantallaGrabadora {
  public:
    PantallaQueEspera() { FijarPantalla(this); }
    ~PantallaQueEspera() override { FijarPantalla(nullptr); }

    void EsperarAOtro(bool esperando) override { ++(esperando ? pasos : finales); }

    int pasos = 0;
    int finales = 0;
};
