#include "core/copies/CanalCopias.h"

namespace {

CanalCopias*& EnUso() {
    static CanalCopias* copias = nullptr;
    return copias;
}

}  // namespace

CanalCopias* Copias() { return EnUso(); }

void FijarCopias(CanalCopias* copias) { EnUso() = copias; }

QDateTime AhoraDeCopias() { return Copias() == nullptr ? QDateTime::currentDateTime() : Copias()->Ahora(); }
