#pragma once

#include <QString>
#include <type_traits>
#include <utility>

#include "core/copies/CopiaDelDia.h"
#include "core/store/Almacen.h"

/// Runs `cuerpo` as one transaction on the user's store, as `EscribirAjustes` does. Before the first of these
/// writes of a day, the store goes among the automatic copies. A copy that cannot be made stops no write; the
/// user is told of it after the write.
template <class F>
auto EscribirUsuario(const QString& ruta, F&& cuerpo) {
    CopiarAntesDelPrimerCambio(ruta);
    if constexpr (std::is_void_v<std::invoke_result_t<F&, Almacen&>>) {
        EscribirAjustes(ruta, std::forward<F>(cuerpo));
        AvisarDeLaCopiaDelDia();
    } else {
        auto resultado = EscribirAjustes(ruta, std::forward<F>(cuerpo));
        AvisarDeLaCopiaDelDia();
        return resultado;
    }
}
