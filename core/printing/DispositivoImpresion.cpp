#include "core/printing/DispositivoImpresion.h"

#include "core/base/ErrorZT.h"

namespace {

DispositivoImpresion*& Puesta() {
    static DispositivoImpresion* impresora = nullptr;
    return impresora;
}

}  // namespace

DispositivoImpresion& Impresora() {
    if (Puesta() == nullptr) {
        throw ErrorZT(NumError::ErrorDeImpresora);
    }
    return *Puesta();
}

void FijarImpresora(DispositivoImpresion* impresora) { Puesta() = impresora; }
