#include "core/services/RevisionDeFondo.h"

#include <sqlite3.h>

#include <QScopeGuard>
#include <utility>

#include "core/store/EsperaDeTurno.h"
#include "core/store/Integridad.h"

namespace {

/// The damage that a failure tells of, if it tells of one.
std::optional<ErrorZT> DanoDe(const ErrorZT& error) {
    const bool danado = error.Numero() == static_cast<int>(NumError::AlmacenDanado);
    return danado ? std::optional(error) : std::nullopt;
}

}  // namespace

RevisionDeFondo::~RevisionDeFondo() { Parar(); }

void RevisionDeFondo::Empezar(const QString& ruta) {
    Parar();
    m_acabada = false;
    m_saltada = false;
    m_hechas = 0;
    m_total = 0;
    m_fallo.reset();
    m_hilo = std::thread([this, ruta] {
        Revisar(ruta);
        m_acabada = true;
    });
}

void RevisionDeFondo::Saltar() {
    m_saltada = true;
    const std::lock_guard guardia(m_cerrojo);
    if (m_conexion != nullptr) {
        sqlite3_interrupt(m_conexion);
    }
}

void RevisionDeFondo::Parar() {
    Saltar();
    if (m_hilo.joinable()) {
        m_hilo.join();
    }
}

std::optional<ErrorZT> RevisionDeFondo::Resultado() {
    if (m_saltada) {
        return std::nullopt;
    }
    if (m_hilo.joinable()) {
        m_hilo.join();
    }
    return std::exchange(m_fallo, std::nullopt);
}

void RevisionDeFondo::FijarConexion(sqlite3* conexion) {
    const std::lock_guard guardia(m_cerrojo);
    m_conexion = conexion;
}

void RevisionDeFondo::Revisar(const QString& ruta) {
    const EsperaAbandonable espera(m_saltada);
    try {
        Almacen almacen(ClaseAlmacen::Usuario, ruta);
        FijarConexion(almacen.Base().getHandle());
        const auto soltar = qScopeGuard([this] { FijarConexion(nullptr); });
        ComprobarContenido(almacen, [this](int hechas, int total) {
            m_total = total;
            m_hechas = hechas;
            // An order that has not begun yet is not interrupted.
            if (m_saltada) {
                throw ErrorZT(NumError::AlmacenOcupado);
            }
        });
    } catch (const SQLite::Exception& error) {
        m_fallo = DanoDe(FalloDeAlmacen(error, ruta));
    } catch (const ErrorZT& error) {
        m_fallo = DanoDe(error);
    }
}
