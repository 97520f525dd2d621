#include "core/base/Pantalla.h"

#include "core/base/ErrorZT.h"

namespace {

CanalPantalla*& EnUso() {
    static CanalPantalla* pantalla = nullptr;
    return pantalla;
}

}  // namespace

CanalPantalla& Pantalla() {
    if (EnUso() == nullptr) {
        throw ErrorZT(NumError::ObjetoNoEstablecido);
    }
    return *EnUso();
}

CanalPantalla* PantallaSiHay() { return EnUso(); }

void FijarPantalla(CanalPantalla* pantalla) { EnUso() = pantalla; }
