#pragma once

#include <exception>
#include <utility>

#include "core/base/ErrorZT.h"
#include "core/run/Entorno.h"
#include "core/run/GeneralZT.h"

/// Runs `cuerpo` as a procedure whose handler reports: a failure is shown in the error dialog under the
/// fixed name, unless it is seen to otherwise, and the procedure gives the zero value of its kind back.
template <class F>
auto ProcedimientoInformado(const QString& objeto, const QString& nombre, F&& cuerpo)
    -> decltype(std::forward<F>(cuerpo)()) {
    using Resultado = decltype(std::forward<F>(cuerpo)());
    const auto informar = [&](const ErrorZT& error) {
        if (!Entorno().Atender(error)) {
            ShowError(objeto, nombre, nombre + QStringLiteral("\r\n") + error.Descripcion());
        }
    };
    try {
        return std::forward<F>(cuerpo)();
    } catch (const ErrorZT& error) {
        informar(error);
    } catch (const std::exception& error) {
        informar(ErrorInterno(error));
    }
    return Resultado();
}
