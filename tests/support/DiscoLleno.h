#pragma once

#include <sys/resource.h>

#include <csignal>

/// For its life no file of the process can grow beyond that many bytes, as on a disk that is full.
class DiscoLleno {
  public:
    explicit DiscoLleno(rlim_t bytes) : m_manejador(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_antes);
        const rlimit limite{bytes, m_antes.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limite);
    }
    ~DiscoLleno() {
        setrlimit(RLIMIT_FSIZE, &m_antes);
        (void)std::signal(SIGXFSZ, m_manejador);
    }
    DiscoLleno(const DiscoLleno&) = delete;
    DiscoLleno& operator=(const DiscoLleno&) = delete;

  private:
    void (*m_manejador)(int);
    rlimit m_antes{};
};
