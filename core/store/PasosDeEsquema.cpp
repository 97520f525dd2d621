#include "core/store/PasosDeEsquema.h"

#include <string>

namespace {

void AnotarVersion(SQLite::Database& base, qint32 version) {
    base.exec("PRAGMA user_version = " + std::to_string(version));
}

}  // namespace

void MigrarBase(SQLite::Database& base, qint32 version, std::span<const PasoDeEsquema> pasos) {
    for (const PasoDeEsquema& paso : pasos) {
        if (paso.hasta > version) {
            base.exec(paso.sql);
            AnotarVersion(base, paso.hasta);
        }
    }
}
