#include <windows.h>

#include "core/run/plataforma/MarcaConNombre.h"

// The system drops the mutex with the last process that holds it.

void PonerMarcaConNombre() noexcept { ::CreateMutexA(nullptr, FALSE, "KLKL_ZELT"); }

void QuitarMarcaConNombre() noexcept {}
