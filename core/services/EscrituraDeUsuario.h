#pragma once

#include <QString>
#include <optional>
#include <type_traits>
#include <utility>

#include "core/copies/CopiaDelDia.h"
#include "core/store/Almacen.h"

/// Runs `cuerpo` as one transaction on the user's store, as `EscribirAjustes` does. Before the first of these
/// writes of a day, the store goes among the automatic copies. A copy that cannot be made stops no write; the
/// user is told of it after the write. Copy and write share one budget of waiting for other programs.
template <class F>
auto EscribirUsuario(const QString& ruta, F&& cuerpo) {
    std::optional<AccionDeAlmacen> accion(std::in_place);
    CopiarAntesDelPrimerCambio(ruta);
    if constexpr (std::is_void_v<std::invoke_result_t<F&, Almacen&>>) {
        EscribirAjustes(ruta, std::forward<F>(cuerpo));
        accion.reset();
        AvisarDeLaCopiaDelDia();
    } else {
        auto resultado = EscribirAjustes(ruta, std::forward<F>(cuerpo));
        accion.reset();
        AvisarDeLaCopiaDelDia();
        return resultado;
    }
}
