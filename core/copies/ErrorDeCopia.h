#pragma once

#include "core/base/ErrorZT.h"
#include "core/copies/CanalCopias.h"

/// A failure of a copy that knows its reason and its file, whatever file the work as a whole is about.
class ErrorDeCopia : public ErrorZT {
  public:
    /// For a reason that has no number of its own among the failures of a store.
    ErrorDeCopia(MotivoDeCopia motivo, const QString& ruta);
    /// A failure over the file at `ruta`; number and description stay.
    ErrorDeCopia(const ErrorZT& error, const QString& ruta);

    [[nodiscard]] const FalloDeCopia& Fallo() const { return m_fallo; }

  private:
    FalloDeCopia m_fallo;
};

/// What a failure means for a copy; it is over the file at `ruta` unless it knows another one.
FalloDeCopia FalloDe(const ErrorZT& error, const QString& ruta);

/// Whether something else than a file stands in its place.
bool EsOtraCosa(MotivoDeCopia motivo);

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
