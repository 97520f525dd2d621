#pragma once

#include "base/CanalCopias.h"
#include "base/ErrorZT.h"

/// A file that is refused, or a copy that cannot be made, for a reason that has no number of its own among
/// the failures of a store.
class ErrorDeCopia : public ErrorZT {
  public:
    ErrorDeCopia(MotivoDeCopia motivo, const QString& ruta);

    [[nodiscard]] MotivoDeCopia Motivo() const { return m_motivo; }

  private:
    MotivoDeCopia m_motivo;
};

/// What a failure over the file at `ruta` means for a copy.
FalloDeCopia FalloDe(const ErrorZT& error, const QString& ruta);

/// Whether the contents of the file are at fault, and not the way to them.
bool EsDelContenido(MotivoDeCopia motivo);

/// Runs `cuerpo`, which works on the file at `ruta`; a failure comes back as the result.
template <class F>
std::optional<FalloDeCopia> Intentar(const QString& ruta, F&& cuerpo) {
    try {
        cuerpo();
    } catch (const ErrorZT& error) {
        return FalloDe(error, ruta);
    }
    return std::nullopt;
}
