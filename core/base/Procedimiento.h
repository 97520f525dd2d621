#pragma once

#include <utility>

#include "core/base/ErrorZT.h"

/// Runs `cuerpo` as a procedure of logic with a handler: a failure climbs on with the same number and
/// source, and `nombre` (the procedure's fixed name) and CR LF in front of its description.
template <class F>
decltype(auto) Procedimiento(QStringView nombre, F&& cuerpo) {
    try {
        return std::forward<F>(cuerpo)();
    } catch (ErrorZT& error) {
        error.Anteponer(nombre);
        throw;
    }
}
