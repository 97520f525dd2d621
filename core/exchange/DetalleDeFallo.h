#pragma once

#include <utility>

#include "core/base/ErrorZT.h"

/// Runs `cuerpo`: a failure climbs on with the same number and source, and at the end of its description, in
/// brackets, the text that `detalle` gives: where in the file or of whom.
template <class Detalle, class F>
decltype(auto) ConDetalle(Detalle&& detalle, F&& cuerpo) {
    try {
        return std::forward<F>(cuerpo)();
    } catch (const ErrorZT& error) {
        throw ErrorZT(static_cast<NumError>(error.Numero()),
                      error.Descripcion() + QStringLiteral(" (%1)").arg(std::forward<Detalle>(detalle)()),
                      error.Origen());
    }
}
