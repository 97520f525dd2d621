#include "core/store/EsperaDeTurno.h"

#include <sqlite3.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QThread>
#include <algorithm>

#include "core/base/Pantalla.h"
#include "core/store/Almacenes.h"

namespace {

/// Milliseconds between two tries.
constexpr qint64 kPaso = 25;

struct Espera {
    int acciones = 0;
    /// Milliseconds that the action has waited.
    qint64 gastado = 0;
    bool avisada = false;
    const std::atomic_bool* abandonada = nullptr;
};

Espera& EnCurso() {
    thread_local Espera espera;
    return espera;
}

void Avisar(bool esperando) {
    CanalPantalla* pantalla = PantallaSiHay();
    const QCoreApplication* programa = QCoreApplication::instance();
    const bool suHilo = programa == nullptr || programa->thread() == QThread::currentThread();
    if (pantalla != nullptr && suHilo) {
        pantalla->EsperarAOtro(esperando);
    }
}

/// Called by the storage library when another program has the store; 0 gives up.
int Esperar(void* /*datos*/, int vez) {
    Espera& espera = EnCurso();
    if (espera.acciones == 0 && vez == 0) {
        espera.gastado = 0;
    }
    const qint64 queda = EsperaDeAlmacen() - espera.gastado;
    const bool abandonada = espera.abandonada != nullptr && *espera.abandonada;
    if (queda <= 0 || abandonada) {
        return 0;
    }
    QElapsedTimer reloj;
    reloj.start();
    if (espera.acciones > 0) {
        espera.avisada = true;
        Avisar(true);
    }
    QThread::msleep(static_cast<unsigned long>(std::min(kPaso, queda)));
    espera.gastado += std::max<qint64>(1, reloj.elapsed());
    return 1;
}

}  // namespace

AccionDeAlmacen::AccionDeAlmacen() {
    Espera& espera = EnCurso();
    if (espera.acciones++ == 0) {
        espera.gastado = 0;
    }
}

AccionDeAlmacen::~AccionDeAlmacen() {
    Espera& espera = EnCurso();
    if (--espera.acciones == 0 && espera.avisada) {
        espera.avisada = false;
        Avisar(false);
    }
}

EsperaAbandonable::EsperaAbandonable(const std::atomic_bool& abandonada) {
    EnCurso().abandonada = &abandonada;
}

EsperaAbandonable::~EsperaAbandonable() { EnCurso().abandonada = nullptr; }

void PonerEspera(SQLite::Database& base) {
    base.check(sqlite3_busy_handler(base.getHandle(), Esperar, nullptr));
}
