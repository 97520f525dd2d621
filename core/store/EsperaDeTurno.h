#pragma once

#include <SQLiteCpp/Database.h>

#include <atomic>

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

/// While it lives, no wait of its thread goes on once `abandonada` has been set.
class EsperaAbandonable {
  public:
    explicit EsperaAbandonable(const std::atomic_bool& abandonada);
    ~EsperaAbandonable();
    EsperaAbandonable(const EsperaAbandonable&) = delete;
    EsperaAbandonable& operator=(const EsperaAbandonable&) = delete;
};

/// Has the connection wait for a store in use as long as the budget of the action lasts.
void PonerEspera(SQLite::Database& base);
