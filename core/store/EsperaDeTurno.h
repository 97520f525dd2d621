#pragma once

#include <SQLiteCpp/Database.h>

/// What the program does at one request of the user, as far as it waits for other programs: however many
/// connections and copies of the store it takes, all their waits together last no longer than
/// `EsperaDeAlmacen`. The innermost of several is part of the outermost. While one waits, the screen is told
/// (see `CanalPantalla::EsperarAOtro`).
class AccionDeAlmacen {
  public:
    AccionDeAlmacen();
    ~AccionDeAlmacen();
    AccionDeAlmacen(const AccionDeAlmacen&) = delete;
    AccionDeAlmacen& operator=(const AccionDeAlmacen&) = delete;
};

/// Has the connection wait for a store in use as long as the budget of the action lasts.
void PonerEspera(SQLite::Database& base);
