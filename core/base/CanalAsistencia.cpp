#include "core/base/CanalAsistencia.h"

#include "core/base/ErrorZT.h"

namespace {

CanalAsistencia*& EnUso() {
    static CanalAsistencia* asistencia = nullptr;
    return asistencia;
}

}  // namespace

CanalAsistencia& Asistencia() {
    if (EnUso() == nullptr) {
        throw ErrorZT(NumError::ObjetoNoEstablecido);
    }
    return *EnUso();
}

void FijarAsistencia(CanalAsistencia* asistencia) { EnUso() = asistencia; }
