#pragma once

#include "core/copies/CanalCopias.h"

/// The channel of the copies in the real program: its dialogs, and the clock of the environment.
class CopiasQt : public CanalCopias {
  public:
    [[nodiscard]] QDateTime Ahora() const override;
    void PedirCopia(TareaDeCopia& tarea) override;
    void PedirRestauracion(TareaDeRestauracion& tarea) override;
    /// The language is not known yet: it is that of the latest automatic copy, Castellano where there is
    /// none.
    [[nodiscard]] bool PedirVuelta(TareaDeVuelta& tarea) override;
    void AvisarSinCopiaDelDia(const FalloDeCopia& fallo) override;
};
