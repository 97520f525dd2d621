#pragma once

#include <sys/resource.h>

#include <csignal>

/// While it lives, no file of the process grows beyond that many bytes, as on a full disk.
class LimiteDeFichero {
  public:
    explicit LimiteDeFichero(rlim_t bytes) : m_senal(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_antes);
        const rlimit limite{bytes, m_antes.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limite);
    }
    ~LimiteDeFichero() {
        setrlimit(RLIMIT_FSIZE, &m_antes);
        std::signal(SIGXFSZ, m_senal);
    }
    LimiteDeFichero(const LimiteDeFichero&) = delete;
    LimiteDeFichero& operator=(const LimiteDeFichero&) = delete;

  private:
    void (*m_senal)(int);
    rlimit m_antes{};
};

/// Runs `cuerpo` under that limit and gives its result. What a test prints may go to a file too: nothing is
/// to be expected within.
template <class F>
auto ConFicherosDeHasta(rlim_t bytes, F&& cuerpo) {
    const LimiteDeFichero limite(bytes);
    return cuerpo();
}
