#pragma once

#include <functional>
#include <vector>

#include "core/copies/CanalCopias.h"

/// A channel of the copies in force for its life: a clock of its own, users that do what the test says, and a
/// record of what they are told. A user of whom nothing is said gives up.
class CopiasDePrueba : public CanalCopias {
  public:
    CopiasDePrueba() { FijarCopias(this); }
    ~CopiasDePrueba() override { FijarCopias(nullptr); }

    [[nodiscard]] QDateTime Ahora() const override { return ahora; }
    void PedirCopia(TareaDeCopia& tarea) override {
        if (alPedirCopia) {
            alPedirCopia(tarea);
        }
    }
    void PedirRestauracion(TareaDeRestauracion& tarea) override {
        if (alPedirRestauracion) {
            alPedirRestauracion(tarea);
        }
    }
    bool PedirVuelta(TareaDeVuelta& tarea) override {
        rechazos.push_back(tarea.Rechazo());
        return alPedirVuelta && alPedirVuelta(tarea);
    }
    void AvisarSinCopiaDelDia(const FalloDeCopia& fallo) override { avisos.push_back(fallo); }

    QDateTime ahora{QDate(2007, 7, 4), QTime(9, 8, 7)};
    std::function<void(TareaDeCopia&)> alPedirCopia;
    std::function<void(TareaDeRestauracion&)> alPedirRestauracion;
    std::function<bool(TareaDeVuelta&)> alPedirVuelta;
    std::vector<FalloDeCopia> rechazos;
    std::vector<FalloDeCopia> avisos;
};
