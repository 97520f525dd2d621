#include "tests/ataque/fallo/Guion.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace fallo {

namespace {

constexpr int kDescriptores = 1024;

struct Orden {
    std::array<char, PATH_MAX> carpeta{};
    std::size_t largo = 0;
    Clase clase = Clase::Todas;
    Modo modo = Modo::Ninguno;
    long caso = 0;
    bool sigue = false;
    int traza = -1;
};

constinit Orden orden{};
constinit std::atomic<long> contadas{0};
constinit std::array<std::array<char, PATH_MAX>, kDescriptores> rutas{};
constinit std::array<std::atomic<bool>, kDescriptores> anotados{};

struct NombreDeModo {
    const char* nombre;
    Modo modo;
};
constexpr std::array kModos{
    NombreDeModo{"ENOSPC", Modo::SinSitio},     NombreDeModo{"EIO", Modo::ErrorDeDisco},
    NombreDeModo{"corta", Modo::Corta},         NombreDeModo{"muerte", Modo::Muerte},
    NombreDeModo{"media", Modo::MuerteAMedias}, NombreDeModo{"parada", Modo::Parada}};

struct NombreDeClase {
    const char* nombre;
    Clase clase;
};
constexpr std::array kClases{NombreDeClase{"escritura", Clase::Escritura},
                             NombreDeClase{"sitio", Clase::Sitio}, NombreDeClase{"cambio", Clase::Cambio},
                             NombreDeClase{"todas", Clase::Todas}};

const char* Leer(const char* variable) {
    const char* valor = std::getenv(variable);
    return valor == nullptr ? "" : valor;
}

long LeerNumero(const char* variable) { return std::strtol(Leer(variable), nullptr, 10); }

void LeerCarpeta() {
    std::snprintf(orden.carpeta.data(), orden.carpeta.size(), "%s/", Leer("ZELT_FALLO_CARPETA"));
    orden.largo = std::strlen(orden.carpeta.data());
    if (orden.largo < 2) {
        orden.largo = 0;
    }
}

void AbrirTraza() {
    const char* fichero = Leer("ZELT_FALLO_TRAZA");
    if (*fichero != '\0') {
        orden.traza = static_cast<int>(
            syscall(SYS_openat, AT_FDCWD, fichero, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
    }
}

void EscribirEnTraza(const void* datos, std::size_t largo) {
    const char* resto = static_cast<const char*>(datos);
    while (largo > 0) {
        const long escrito = syscall(SYS_write, orden.traza, resto, largo);
        if (escrito <= 0) {
            std::abort();
        }
        resto += escrito;
        largo -= static_cast<std::size_t>(escrito);
    }
}

bool EsPosible(int descriptor) { return descriptor >= 0 && descriptor < kDescriptores; }

/// What comes after the call of a disk that took half of it.
Modo Siguiente(bool primera) {
    if (orden.modo == Modo::Corta && !primera) {
        return Modo::SinSitio;
    }
    return orden.modo;
}

}  // namespace

void Armar() {
    orden = Orden{};
    contadas = 0;
    LeerCarpeta();
    for (const NombreDeClase& clase : kClases) {
        if (std::strcmp(Leer("ZELT_FALLO_CLASE"), clase.nombre) == 0) {
            orden.clase = clase.clase;
        }
    }
    for (const NombreDeModo& modo : kModos) {
        if (std::strcmp(Leer("ZELT_FALLO_MODO"), modo.nombre) == 0) {
            orden.modo = modo.modo;
        }
    }
    orden.caso = LeerNumero("ZELT_FALLO_CASO");
    orden.sigue = LeerNumero("ZELT_FALLO_SIGUE") != 0;
    AbrirTraza();
}

long Contadas() { return contadas; }

Modo Preguntar(Clase clase) {
    if (clase > orden.clase) {
        return Modo::Ninguno;
    }
    const long numero = ++contadas;
    const bool toca = orden.caso > 0 && (numero == orden.caso || (orden.sigue && numero > orden.caso));
    if (!toca) {
        return Modo::Ninguno;
    }
    const Modo modo = Siguiente(numero == orden.caso);
    if (modo == Modo::Muerte) {
        std::raise(SIGKILL);
    }
    if (modo == Modo::Parada) {
        std::raise(SIGSTOP);
        return Modo::Ninguno;
    }
    return modo;
}

bool EsDeLaCarpeta(int carpeta, const char* ruta, char* completa, std::size_t largo) {
    if (orden.largo == 0 || ruta == nullptr) {
        return false;
    }
    if (ruta[0] == '/') {
        std::snprintf(completa, largo, "%s", ruta);
    } else {
        const char* de = RutaDe(carpeta);
        if (de == nullptr) {
            return false;
        }
        std::snprintf(completa, largo, "%s/%s", de, ruta);
    }
    return std::strncmp(completa, orden.carpeta.data(), orden.largo) == 0;
}

void Anotar(int descriptor, const char* ruta) {
    if (EsPosible(descriptor)) {
        const auto lugar = static_cast<std::size_t>(descriptor);
        std::snprintf(rutas[lugar].data(), rutas[lugar].size(), "%s", ruta);
        anotados[lugar] = true;
    }
}

void Olvidar(int descriptor) {
    if (EsPosible(descriptor)) {
        anotados[static_cast<std::size_t>(descriptor)] = false;
    }
}

const char* RutaDe(int descriptor) {
    if (!EsPosible(descriptor)) {
        return nullptr;
    }
    const auto lugar = static_cast<std::size_t>(descriptor);
    return anotados[lugar] ? rutas[lugar].data() : nullptr;
}

bool HayTraza() { return orden.traza >= 0; }

void Trazar(const char* llamada, const char* ruta, const char* otra, off_t lugar, const void* datos,
            std::size_t largo) {
    if (!HayTraza()) {
        return;
    }
    std::array<char, 2 * PATH_MAX + 100> linea{};
    const int n = std::snprintf(linea.data(), linea.size(), "%s\t%s\t%s\t%lld\t%zu\n", llamada, ruta, otra,
                                static_cast<long long>(lugar), largo);
    EscribirEnTraza(linea.data(), static_cast<std::size_t>(n));
    if (datos != nullptr) {
        EscribirEnTraza(datos, largo);
    }
}

}  // namespace fallo

extern "C" {

/// For the program under attack, which finds them by their names when the library is loaded.
void zelt_fallo_armar() { fallo::Armar(); }
long zelt_fallo_contadas() { return fallo::Contadas(); }
}

namespace {
[[gnu::constructor]] void ArmarAlCargar() { fallo::Armar(); }
}  // namespace
