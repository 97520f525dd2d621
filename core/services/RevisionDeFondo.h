#pragma once

#include <QString>
#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

#include "core/base/ErrorZT.h"

struct sqlite3;

/// The check of the whole user's store on a connection and in a thread of its own, while the program does
/// something else. All members are for the one thread that owns it.
class RevisionDeFondo {
  public:
    RevisionDeFondo() = default;
    /// Gives up what is still under way, and waits for it.
    ~RevisionDeFondo();
    RevisionDeFondo(const RevisionDeFondo&) = delete;
    RevisionDeFondo& operator=(const RevisionDeFondo&) = delete;

    /// Begins with the store at `ruta`, in the place of what was under way.
    void Empezar(const QString& ruta);
    /// Whether there is nothing to wait for: also before the first one, and after `Saltar`.
    [[nodiscard]] bool Acabada() const { return m_acabada || m_saltada; }
    /// How much has been looked through, of `Total()` parts; none while that is not known.
    [[nodiscard]] int Hechas() const { return m_hechas; }
    [[nodiscard]] int Total() const { return m_total; }
    /// Gives it up: nothing has been found. Returns at once; the thread goes as soon as it can.
    void Saltar();

    /// Waits for the end and gives what was found, once: the damage, 3049 with the cause. A store that could
    /// not be read for another reason, such as another program that is writing, has none.
    [[nodiscard]] std::optional<ErrorZT> Resultado();

  private:
    void Parar();
    void Revisar(const QString& ruta);
    /// The connection that `Saltar` interrupts while there is one.
    void FijarConexion(sqlite3* conexion);

    std::thread m_hilo;
    std::atomic_bool m_acabada{true};
    std::atomic_bool m_saltada{false};
    std::atomic_int m_hechas{0};
    std::atomic_int m_total{0};
    std::mutex m_cerrojo;
    sqlite3* m_conexion = nullptr;
    std::optional<ErrorZT> m_fallo;
};
