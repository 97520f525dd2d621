#include "core/base/Instancias.h"

#include <vector>

namespace {

std::vector<std::function<void()>>& Limpiezas() {
    static std::vector<std::function<void()>> limpiezas;
    return limpiezas;
}

}  // namespace

void detalle::RegistrarLimpieza(std::function<void()> limpieza) {
    Limpiezas().push_back(std::move(limpieza));
}

void ReiniciarInstancias() {
    auto& limpiezas = Limpiezas();
    while (!limpiezas.empty()) {
        const auto limpieza = std::move(limpiezas.back());
        limpiezas.pop_back();
        limpieza();
    }
}
