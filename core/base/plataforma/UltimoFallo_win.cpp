#define NOMINMAX
#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <algorithm>
#include <array>

#include "core/base/plataforma/UltimoFallo.h"

namespace {

struct Causa {
    DWORD numero;
    QStringView clave;
};

constexpr std::array kCausas{Causa{ERROR_DISK_FULL, u"causa_disco_lleno"},
                             Causa{ERROR_HANDLE_DISK_FULL, u"causa_disco_lleno"},
                             Causa{ERROR_DISK_QUOTA_EXCEEDED, u"causa_disco_lleno"},
                             Causa{ERROR_ACCESS_DENIED, u"causa_permiso"},
                             Causa{ERROR_WRITE_PROTECT, u"causa_solo_lectura"},
                             Causa{ERROR_SHARING_VIOLATION, u"causa_ocupado"},
                             Causa{ERROR_LOCK_VIOLATION, u"causa_ocupado"},
                             Causa{ERROR_FILE_NOT_FOUND, u"causa_no_existe"},
                             Causa{ERROR_PATH_NOT_FOUND, u"causa_no_existe"},
                             Causa{ERROR_ALREADY_EXISTS, u"causa_ya_existe"},
                             Causa{ERROR_FILE_EXISTS, u"causa_ya_existe"},
                             Causa{ERROR_FILENAME_EXCED_RANGE, u"causa_nombre_largo"},
                             Causa{ERROR_FILE_TOO_LARGE, u"causa_demasiado_grande"},
                             Causa{ERROR_TOO_MANY_OPEN_FILES, u"causa_muchos_abiertos"}};

}  // namespace

NumError NumeroDelUltimoFallo(NumError otro) {
    return EsFaltaDeSitio(static_cast<int>(GetLastError())) ? NumError::DiscoLleno : otro;
}

bool EsFaltaDeSitio(int numeroDelSistema) {
    return numeroDelSistema == ERROR_DISK_FULL || numeroDelSistema == ERROR_HANDLE_DISK_FULL ||
           numeroDelSistema == ERROR_DISK_QUOTA_EXCEEDED;
}

QStringView CausaDelUltimoFallo() {
    const auto* fila = std::ranges::find(kCausas, GetLastError(), &Causa::numero);
    return fila == kCausas.end() ? QStringView(u"causa_sistema") : fila->clave;
}
