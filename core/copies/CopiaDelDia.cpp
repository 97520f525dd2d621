#include "core/copies/CopiaDelDia.h"

#include <utility>

#include "core/base/Instancias.h"
#include "core/copies/CopiasAutomaticas.h"
#include "core/copies/ErrorDeCopia.h"
#include "core/store/Almacen.h"

namespace {

/// What has been seen to in this process.
struct CopiaDelDia {
    QString ruta;
    QDate dia;
    std::optional<FalloDeCopia> fallo;
};

}  // namespace

void CopiarAntesDelPrimerCambio(const QString& ruta) {
    if (Copias() == nullptr) {
        return;
    }
    const QDateTime ahora = Copias()->Ahora();
    auto& vista = InstanciaUnica<CopiaDelDia>();
    if (vista.dia == ahora.date() && vista.ruta == ruta) {
        return;
    }
    ConAlmacen(ClaseAlmacen::Usuario, ruta, [&](Almacen& almacen) {
        vista = {ruta, ahora.date(), {}};
        const QString carpeta = CarpetaDeCopiasAutomaticas(ruta);
        if (!HayCopiaDelDia(carpeta, ahora.date())) {
            vista.fallo = Intentar(carpeta, [&] {
                const QString copia = HacerCopiaAutomatica(almacen.Base(), ruta, Ocasion::Diaria, ahora);
                PodarCopiasAutomaticas(carpeta, copia);
            });
        }
    });
}

void AvisarDeLaCopiaDelDia() {
    auto& vista = InstanciaUnica<CopiaDelDia>();
    if (const auto fallo = std::exchange(vista.fallo, std::nullopt)) {
        Copias()->AvisarSinCopiaDelDia(*fallo);
    }
}
