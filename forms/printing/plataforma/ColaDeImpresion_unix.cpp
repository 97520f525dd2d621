#include <QLibrary>
#include <algorithm>
#include <array>

#include "core/base/TextosPropios.h"
#include "forms/printing/plataforma/ColaDeImpresion.h"

using namespace Qt::StringLiterals;

namespace {

/// Highest of the answers that mean success (RFC 8011, 4.1.6.1).
constexpr int kUltimaRespuestaBuena = 0x00FF;
constexpr int kVersionDeCups = 2;

struct Causa {
    int respuesta;
    QStringView clave;
};

/// Answers that users can do something about (RFC 8011, B.1). The library's own words are in the language of
/// the system, or in English; where it does not reach the service it answers with an internal error itself.
constexpr std::array kCausas{
    Causa{0x0401, u"causa_impresora_sin_permiso"},  Causa{0x0402, u"causa_impresora_sin_permiso"},
    Causa{0x0403, u"causa_impresora_sin_permiso"},  Causa{0x0406, u"causa_impresora_no_existe"},
    Causa{0x0407, u"causa_impresora_no_existe"},    Causa{0x0500, u"causa_impresora_sin_servicio"},
    Causa{0x0502, u"causa_impresora_sin_servicio"}, Causa{0x0506, u"causa_impresora_no_admite"}};

QString TextoDeRespuesta(int respuesta) {
    const auto* fila = std::ranges::find(kCausas, respuesta, &Causa::respuesta);
    if (fila != kCausas.end()) {
        return TextoPropio(fila->clave);
    }
    return TextoPropio(u"causa_impresora_rechazo").arg(u"0x%1"_s.arg(respuesta, 4, 16, QChar(u'0')));
}

}  // namespace

// The toolkit hands jobs to CUPS and does not look at the answer. The library is the one that it has loaded,
// and remembers its last answer by thread; a system without it has no queue.
QString FalloDelUltimoTrabajo() {
    using Respuesta = int (*)();
    QLibrary cups(u"cups"_s, kVersionDeCups);
    const auto respuesta = reinterpret_cast<Respuesta>(cups.resolve("cupsLastError"));
    if (respuesta == nullptr) {
        return {};
    }
    const int ultima = respuesta();
    return ultima <= kUltimaRespuestaBuena ? QString() : TextoDeRespuesta(ultima);
}
