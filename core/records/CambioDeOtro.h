#pragma once

#include <QStringView>
#include <utility>

#include "core/services/EstadoLeido.h"

// What another program that works on the same store has changed, deleted or replaced since a record was read.

/// Tells the user of it: a text of the program's own catalogue and its title.
void AvisarDeCambioDeOtro(QStringView texto, QStringView titulo);

/// Runs a save. Where it is refused because another program has changed the record, the user is told with the
/// text and title of those keys, what he typed stays, and the result is False.
template <class F>
[[nodiscard]] bool GuardarSalvoCambioDeOtro(QStringView texto, QStringView titulo, F&& cuerpo) {
    try {
        std::forward<F>(cuerpo)();
        return true;
    } catch (const ErrorZT& error) {
        if (!EsCambioDeOtro(error)) {
            throw;
        }
    }
    AvisarDeCambioDeOtro(texto, titulo);
    return false;
}
