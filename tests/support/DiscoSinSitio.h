#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>

// Calls of the system that can be told to fail as on a disk without room. They take the place of those of the
// C library in the whole program, so that one source of a program includes this file.

/// For its life nothing can be made, written or brought to the disk, for want of room; but for the first so
/// many calls.
class DiscoSinSitio {
  public:
    explicit DiscoSinSitio(int dejadas = 0) {
        Actual() = this;
        m_dejadas = dejadas;
    }
    ~DiscoSinSitio() { Actual() = nullptr; }
    DiscoSinSitio(const DiscoSinSitio&) = delete;
    DiscoSinSitio& operator=(const DiscoSinSitio&) = delete;

    /// Whether a call has been refused.
    [[nodiscard]] bool Negado() const { return m_dejadas < 0; }

    /// The answer of a call that `orden` would carry out.
    template <class F>
    static auto Responder(F&& orden) -> decltype(orden()) {
        DiscoSinSitio* disco = Actual();
        if (disco != nullptr && (disco->Negado() || --disco->m_dejadas < 0)) {
            errno = ENOSPC;
            return -1;
        }
        return orden();
    }

  private:
    static DiscoSinSitio*& Actual() {
        static DiscoSinSitio* actual = nullptr;
        return actual;
    }

    int m_dejadas = 0;
};

namespace llamadas {

inline int Abrir(const char* ruta, int modo, mode_t permisos) {
    const auto abrir = [=] { return static_cast<int>(syscall(SYS_openat, AT_FDCWD, ruta, modo, permisos)); };
    return (modo & O_CREAT) != 0 ? DiscoSinSitio::Responder(abrir) : abrir();
}

inline ssize_t Escribir(int fd, const void* datos, size_t bytes, off_t lugar) {
    return DiscoSinSitio::Responder([=] { return syscall(SYS_pwrite64, fd, datos, bytes, lugar); });
}

}  // namespace llamadas

extern "C" {
int mkdir(const char* ruta, mode_t modo) noexcept {
    return DiscoSinSitio::Responder(
        [=] { return static_cast<int>(syscall(SYS_mkdirat, AT_FDCWD, ruta, modo)); });
}
int fsync(int fd) {
    return DiscoSinSitio::Responder([=] { return static_cast<int>(syscall(SYS_fsync, fd)); });
}
int fdatasync(int fd) {
    return DiscoSinSitio::Responder([=] { return static_cast<int>(syscall(SYS_fdatasync, fd)); });
}
int open(const char* ruta, int modo, ...) {
    va_list otros;
    va_start(otros, modo);
    const mode_t permisos = (modo & O_CREAT) != 0 ? va_arg(otros, mode_t) : 0;
    va_end(otros);
    return llamadas::Abrir(ruta, modo, permisos);
}
int open64(const char* ruta, int modo, ...) {
    va_list otros;
    va_start(otros, modo);
    const mode_t permisos = (modo & O_CREAT) != 0 ? va_arg(otros, mode_t) : 0;
    va_end(otros);
    return llamadas::Abrir(ruta, modo, permisos);
}
ssize_t write(int fd, const void* datos, size_t bytes) {
    const auto escribir = [=] { return syscall(SYS_write, fd, datos, bytes); };
    return fd > STDERR_FILENO ? DiscoSinSitio::Responder(escribir) : escribir();
}
ssize_t pwrite(int fd, const void* datos, size_t bytes, off_t lugar) {
    return llamadas::Escribir(fd, datos, bytes, lugar);
}
ssize_t pwrite64(int fd, const void* datos, size_t bytes, off64_t lugar) {
    return llamadas::Escribir(fd, datos, bytes, lugar);
}
}
