#include <algorithm>
#include <array>
#include <cerrno>

#include "core/base/plataforma/UltimoFallo.h"

namespace {

struct Causa {
    int numero;
    QStringView clave;
};

constexpr std::array kCausas{
    Causa{ENOSPC, u"causa_disco_lleno"},     Causa{EDQUOT, u"causa_disco_lleno"},
    Causa{EACCES, u"causa_permiso"},         Causa{EPERM, u"causa_permiso"},
    Causa{EROFS, u"causa_solo_lectura"},     Causa{EBUSY, u"causa_ocupado"},
    Causa{ETXTBSY, u"causa_ocupado"},        Causa{ENOENT, u"causa_no_existe"},
    Causa{ENOTDIR, u"causa_no_existe"},      Causa{EEXIST, u"causa_ya_existe"},
    Causa{EISDIR, u"causa_es_carpeta"},      Causa{ENAMETOOLONG, u"causa_nombre_largo"},
    Causa{EFBIG, u"causa_demasiado_grande"}, Causa{EMFILE, u"causa_muchos_abiertos"},
    Causa{ENFILE, u"causa_muchos_abiertos"}, Causa{EIO, u"causa_disco"}};

}  // namespace

NumError NumeroDelUltimoFallo(NumError otro) { return EsFaltaDeSitio(errno) ? NumError::DiscoLleno : otro; }

bool EsFaltaDeSitio(int numeroDelSistema) { return numeroDelSistema == ENOSPC || numeroDelSistema == EDQUOT; }

QStringView CausaDelUltimoFallo() {
    const auto* fila = std::ranges::find(kCausas, errno, &Causa::numero);
    return fila == kCausas.end() ? QStringView(u"causa_sistema") : fila->clave;
}
