#pragma once

#include <sys/types.h>

#include <cstddef>

// What the fault library is to do, and to which calls. It is loaded in front of the C library and stands in
// for the calls that work on files; those on files below one folder are counted, and one of them, or all from
// it on, goes wrong. The others pass untouched.
//
// It may be called before any constructor has run and after every destructor: no object of static storage
// here has one.

namespace fallo {

/// Kinds of call, each a part of the next: those that carry data to a file, those that want room on the
/// disk, those that change anything on it, and all, opening for reading and reading included.
enum class Clase { Escritura, Sitio, Cambio, Todas };

enum class Modo {
    Ninguno,
    /// The call is refused: "no space left on device", "input/output error".
    SinSitio,
    ErrorDeDisco,
    /// The first half of the data is taken, and with `sigue` there is no room for anything after it.
    Corta,
    /// The process is killed before the call, or after the first half of its data.
    Muerte,
    MuerteAMedias,
    /// The process is stopped before the call until somebody has it go on.
    Parada
};

/// Reads the order from the environment and begins to count anew:
///   ZELT_FALLO_CARPETA  the folder; without it nothing is counted
///   ZELT_FALLO_CLASE    escritura, sitio, cambio or todas
///   ZELT_FALLO_MODO     ENOSPC, EIO, corta, muerte, media or parada
///   ZELT_FALLO_CASO     which call, from 1; 0 for none
///   ZELT_FALLO_SIGUE    1 when all calls after it go wrong too
///   ZELT_FALLO_TRAZA    file that takes a record of every call that changes something
void Armar();

/// Calls counted since then.
long Contadas();

/// Counts a call of that kind and says what is to become of it. Kills or stops the process where the order
/// is to do so.
Modo Preguntar(Clase clase);

/// Whether the path, relative to an open folder, leads below the folder of the order. `completa` takes the
/// absolute path.
bool EsDeLaCarpeta(int carpeta, const char* ruta, char* completa, std::size_t largo);

// Descriptors of counted files.
void Anotar(int descriptor, const char* ruta);
void Olvidar(int descriptor);
/// Path of the file, or nullptr for one that is not counted.
const char* RutaDe(int descriptor);

/// Writes a record into the trace: a line "call path other offset length", fields separated by tabs, and the
/// data behind it.
void Trazar(const char* llamada, const char* ruta, const char* otra, off_t lugar, const void* datos,
            std::size_t largo);
bool HayTraza();

}  // namespace fallo
