#include <QLibrary>

#include "forms/printing/plataforma/ColaDeImpresion.h"

using namespace Qt::StringLiterals;

namespace {

/// Highest of the answers that mean success (RFC 8011, 4.1.6.1).
constexpr int kUltimaRespuestaBuena = 0x00FF;
constexpr int kVersionDeCups = 2;

}  // namespace

// The toolkit hands jobs to CUPS and does not look at the answer. The library is the one that it has loaded,
// and remembers its last answer by thread; a system without it has no queue.
QString FalloDelUltimoTrabajo() {
    using Respuesta = int (*)();
    using Texto = const char* (*)();
    QLibrary cups(u"cups"_s, kVersionDeCups);
    const auto respuesta = reinterpret_cast<Respuesta>(cups.resolve("cupsLastError"));
    const auto texto = reinterpret_cast<Texto>(cups.resolve("cupsLastErrorString"));
    if (respuesta == nullptr || texto == nullptr || respuesta() <= kUltimaRespuestaBuena) {
        return {};
    }
    return QString::fromUtf8(texto());
}
