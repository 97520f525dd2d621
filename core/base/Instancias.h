#pragma once

#include <functional>
#include <memory>

namespace detalle {
/// Keeps what drops an instance, for `ReiniciarInstancias`.
void RegistrarLimpieza(std::function<void()> limpieza);
}  // namespace detalle

/// The shared instance of a class: made on first use, alive for the whole run, dropped by
/// `ReiniciarInstancias` in tests. Forms talk to each other through these instead of passing arguments.
template <class T>
T& InstanciaUnica() {
    static std::unique_ptr<T> instancia;
    if (!instancia) {
        instancia = std::make_unique<T>();
        detalle::RegistrarLimpieza([] { instancia.reset(); });
    }
    return *instancia;
}

/// Drops every shared instance made so far, the last made first.
void ReiniciarInstancias();
