// The calls that the fault library stands in for. Each asks what is to become of it, and passes on to the
// system itself, not to the C library, so that nothing has to be looked up before it works. Threads may trace
// calls in another order than that in which they ran: what is traced has one thread.

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdarg>

#include "tests/ataque/fallo/Guion.h"

using fallo::Clase;
using fallo::Modo;

namespace {

using Ruta = std::array<char, PATH_MAX>;

/// True when the call is refused, the cause being set.
bool Negada(Modo modo) {
    if (modo == Modo::SinSitio) {
        errno = ENOSPC;
    } else if (modo == Modo::ErrorDeDisco) {
        errno = EIO;
    }
    return modo == Modo::SinSitio || modo == Modo::ErrorDeDisco;
}

int Abrir(int carpeta, const char* ruta, int modo, mode_t permisos) {
    Ruta completa{};
    const bool contada = fallo::EsDeLaCarpeta(carpeta, ruta, completa.data(), completa.size());
    if (contada) {
        const bool crea = (modo & (O_CREAT | O_TRUNC)) != 0;
        if (Negada(fallo::Preguntar(crea ? Clase::Sitio : Clase::Todas))) {
            return -1;
        }
    }
    const bool nueva = contada && (modo & O_CREAT) != 0 && syscall(SYS_faccessat, carpeta, ruta, F_OK) != 0;
    const int causa = errno;
    const auto fd = static_cast<int>(syscall(SYS_openat, carpeta, ruta, modo | O_LARGEFILE, permisos));
    if (fd >= 0) {
        errno = causa;
        fallo::Olvidar(fd);
    }
    if (fd >= 0 && contada) {
        fallo::Anotar(fd, completa.data());
        if (nueva) {
            fallo::Trazar("crear", completa.data(), "", permisos, nullptr, 0);
        } else if ((modo & O_TRUNC) != 0) {
            fallo::Trazar("largo", completa.data(), "", 0, nullptr, 0);
        }
    }
    return fd;
}

/// Where a write without a place of its own begins.
off_t LugarDe(int fd) { return static_cast<off_t>(syscall(SYS_lseek, fd, 0, SEEK_CUR)); }

ssize_t Hecho(int fd, const void* datos, ssize_t escrito, off_t desde) {
    if (escrito > 0 && fallo::HayTraza()) {
        const off_t lugar = desde >= 0 ? desde : LugarDe(fd) - escrito;
        fallo::Trazar("escribir", fallo::RutaDe(fd), "", lugar, datos, static_cast<size_t>(escrito));
    }
    return escrito;
}

/// `desde` -1: where the file stands.
ssize_t EscribirSinPreguntar(int fd, const void* datos, size_t largo, off_t desde) {
    return static_cast<ssize_t>(desde < 0 ? syscall(SYS_write, fd, datos, largo)
                                          : syscall(SYS_pwrite64, fd, datos, largo, desde));
}

ssize_t Escribir(int fd, const void* datos, size_t largo, off_t desde) {
    if (fallo::RutaDe(fd) == nullptr) {
        return EscribirSinPreguntar(fd, datos, largo, desde);
    }
    const Modo modo = fallo::Preguntar(Clase::Escritura);
    if (Negada(modo)) {
        return -1;
    }
    if (modo == Modo::Corta || modo == Modo::MuerteAMedias) {
        largo = largo > 1 ? largo / 2 : largo;
    }
    const ssize_t escrito = EscribirSinPreguntar(fd, datos, largo, desde);
    if (modo == Modo::MuerteAMedias) {
        std::raise(SIGKILL);
    }
    return Hecho(fd, datos, escrito, desde);
}

ssize_t Leer(int fd, void* datos, size_t largo, off_t desde) {
    if (fallo::RutaDe(fd) != nullptr && Negada(fallo::Preguntar(Clase::Todas))) {
        return -1;
    }
    return static_cast<ssize_t>(desde < 0 ? syscall(SYS_read, fd, datos, largo)
                                          : syscall(SYS_pread64, fd, datos, largo, desde));
}

int Sincronizar(int fd, long llamada) {
    const char* ruta = fallo::RutaDe(fd);
    if (ruta != nullptr && Negada(fallo::Preguntar(Clase::Sitio))) {
        return -1;
    }
    const auto hecho = static_cast<int>(syscall(llamada, fd));
    if (hecho == 0 && ruta != nullptr) {
        fallo::Trazar("sincronizar", ruta, "", 0, nullptr, 0);
    }
    return hecho;
}

int Alargar(int fd, off_t largo) {
    const char* ruta = fallo::RutaDe(fd);
    if (ruta != nullptr && Negada(fallo::Preguntar(Clase::Sitio))) {
        return -1;
    }
    const auto hecho = static_cast<int>(syscall(SYS_ftruncate, fd, largo));
    if (hecho == 0 && ruta != nullptr) {
        fallo::Trazar("largo", ruta, "", largo, nullptr, 0);
    }
    return hecho;
}

/// A call on one or two names. `otra` is nullptr where there is one.
template <class F>
int ConNombres(Clase clase, const char* llamada, int deCarpeta, const char* ruta, int aCarpeta,
               const char* otra, F&& cuerpo) {
    Ruta de{};
    Ruta a{};
    const bool contada = fallo::EsDeLaCarpeta(deCarpeta, ruta, de.data(), de.size());
    if (otra != nullptr) {
        (void)fallo::EsDeLaCarpeta(aCarpeta, otra, a.data(), a.size());
    }
    if (contada && Negada(fallo::Preguntar(clase))) {
        return -1;
    }
    const auto hecho = static_cast<int>(cuerpo());
    if (contada && hecho == 0) {
        fallo::Trazar(llamada, de.data(), a.data(), 0, nullptr, 0);
    }
    return hecho;
}

int Renombrar(int deCarpeta, const char* de, int aCarpeta, const char* a, unsigned modo) {
    return ConNombres(Clase::Sitio, "renombrar", deCarpeta, de, aCarpeta, a,
                      [&] { return syscall(SYS_renameat2, deCarpeta, de, aCarpeta, a, modo); });
}

int Enlazar(int deCarpeta, const char* de, int aCarpeta, const char* a, int modo) {
    return ConNombres(Clase::Sitio, "enlazar", deCarpeta, de, aCarpeta, a,
                      [&] { return syscall(SYS_linkat, deCarpeta, de, aCarpeta, a, modo); });
}

int Borrar(int carpeta, const char* ruta, int modo) {
    return ConNombres(Clase::Cambio, "borrar", carpeta, ruta, AT_FDCWD, nullptr,
                      [&] { return syscall(SYS_unlinkat, carpeta, ruta, modo); });
}

int HacerCarpeta(int carpeta, const char* ruta, mode_t permisos) {
    return ConNombres(Clase::Sitio, "carpeta", carpeta, ruta, AT_FDCWD, nullptr,
                      [&] { return syscall(SYS_mkdirat, carpeta, ruta, permisos); });
}

int Permitir(int carpeta, const char* ruta, mode_t permisos) {
    return ConNombres(Clase::Cambio, "permisos", carpeta, ruta, AT_FDCWD, nullptr,
                      [&] { return syscall(SYS_fchmodat, carpeta, ruta, permisos); });
}

/// The rights of a file that may be made stand behind the flags.
mode_t Permisos(int modo, va_list argumentos) {
    const bool hay = (modo & O_CREAT) != 0 || (modo & O_TMPFILE) == O_TMPFILE;
    return hay ? static_cast<mode_t>(va_arg(argumentos, unsigned)) : 0;
}

}  // namespace

extern "C" {

int open(const char* ruta, int modo, ...) {
    va_list argumentos;
    va_start(argumentos, modo);
    const mode_t permisos = Permisos(modo, argumentos);
    va_end(argumentos);
    return Abrir(AT_FDCWD, ruta, modo, permisos);
}

int open64(const char* ruta, int modo, ...) {
    va_list argumentos;
    va_start(argumentos, modo);
    const mode_t permisos = Permisos(modo, argumentos);
    va_end(argumentos);
    return Abrir(AT_FDCWD, ruta, modo, permisos);
}

int openat(int carpeta, const char* ruta, int modo, ...) {
    va_list argumentos;
    va_start(argumentos, modo);
    const mode_t permisos = Permisos(modo, argumentos);
    va_end(argumentos);
    return Abrir(carpeta, ruta, modo, permisos);
}

int openat64(int carpeta, const char* ruta, int modo, ...) {
    va_list argumentos;
    va_start(argumentos, modo);
    const mode_t permisos = Permisos(modo, argumentos);
    va_end(argumentos);
    return Abrir(carpeta, ruta, modo, permisos);
}

int creat(const char* ruta, mode_t permisos) {
    return Abrir(AT_FDCWD, ruta, O_CREAT | O_WRONLY | O_TRUNC, permisos);
}
int creat64(const char* ruta, mode_t permisos) { return creat(ruta, permisos); }

int close(int fd) {
    fallo::Olvidar(fd);
    return static_cast<int>(syscall(SYS_close, fd));
}

ssize_t write(int fd, const void* datos, size_t largo) { return Escribir(fd, datos, largo, -1); }
ssize_t pwrite(int fd, const void* datos, size_t largo, off_t desde) {
    return Escribir(fd, datos, largo, desde);
}
ssize_t pwrite64(int fd, const void* datos, size_t largo, off64_t desde) {
    return Escribir(fd, datos, largo, desde);
}
ssize_t writev(int fd, const iovec* trozos, int cuantos) {
    ssize_t hecho = 0;
    for (int i = 0; i < cuantos; ++i) {
        const ssize_t escrito = Escribir(fd, trozos[i].iov_base, trozos[i].iov_len, -1);
        if (escrito < 0) {
            return hecho > 0 ? hecho : -1;
        }
        hecho += escrito;
        if (static_cast<size_t>(escrito) < trozos[i].iov_len) {
            break;
        }
    }
    return hecho;
}

ssize_t read(int fd, void* datos, size_t largo) { return Leer(fd, datos, largo, -1); }
ssize_t pread(int fd, void* datos, size_t largo, off_t desde) { return Leer(fd, datos, largo, desde); }
ssize_t pread64(int fd, void* datos, size_t largo, off64_t desde) { return Leer(fd, datos, largo, desde); }

int fsync(int fd) { return Sincronizar(fd, SYS_fsync); }
int fdatasync(int fd) { return Sincronizar(fd, SYS_fdatasync); }
int ftruncate(int fd, off_t largo) noexcept { return Alargar(fd, largo); }
int ftruncate64(int fd, off64_t largo) noexcept { return Alargar(fd, largo); }

int rename(const char* de, const char* a) noexcept { return Renombrar(AT_FDCWD, de, AT_FDCWD, a, 0); }
int renameat(int deCarpeta, const char* de, int aCarpeta, const char* a) noexcept {
    return Renombrar(deCarpeta, de, aCarpeta, a, 0);
}
int renameat2(int deCarpeta, const char* de, int aCarpeta, const char* a, unsigned modo) noexcept {
    return Renombrar(deCarpeta, de, aCarpeta, a, modo);
}
int link(const char* de, const char* a) noexcept { return Enlazar(AT_FDCWD, de, AT_FDCWD, a, 0); }
int linkat(int deCarpeta, const char* de, int aCarpeta, const char* a, int modo) noexcept {
    return Enlazar(deCarpeta, de, aCarpeta, a, modo);
}
int unlink(const char* ruta) noexcept { return Borrar(AT_FDCWD, ruta, 0); }
int unlinkat(int carpeta, const char* ruta, int modo) noexcept { return Borrar(carpeta, ruta, modo); }
int rmdir(const char* ruta) noexcept { return Borrar(AT_FDCWD, ruta, AT_REMOVEDIR); }
int mkdir(const char* ruta, mode_t permisos) noexcept { return HacerCarpeta(AT_FDCWD, ruta, permisos); }
int mkdirat(int carpeta, const char* ruta, mode_t permisos) noexcept {
    return HacerCarpeta(carpeta, ruta, permisos);
}
int chmod(const char* ruta, mode_t permisos) noexcept { return Permitir(AT_FDCWD, ruta, permisos); }
}
