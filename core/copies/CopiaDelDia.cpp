#include "core/copies/CopiaDelDia.h"

#include <utility>

#include "core/base/Instancias.h"
#include "core/copies/CopiasAutomaticas.h"
#include "core/copies/ErrorDeCopia.h"
#include "core/store/Consulta.h"

namespace {

/// What has been seen to in this process.
struct CopiaDelDia {
    QString ruta;
    QDate dia;
    bool hecha = false;
    bool avisado = false;
    std::optional<FalloDeCopia> fallo;
};

void CopiarEntreLasAutomaticas(Almacen& almacen, const QDateTime& ahora) {
    const QString copia = HacerCopiaAutomatica(almacen.Base(), almacen.Ruta(), Ocasion::Diaria, ahora);
    PodarCopiasAutomaticas(CarpetaDeCopiasAutomaticas(almacen.Ruta()), copia);
}

}  // namespace

void CopiarAntesDelPrimerCambio(const QString& ruta) {
    if (Copias() == nullptr) {
        return;
    }
    const QDateTime ahora = Copias()->Ahora();
    auto& vista = InstanciaUnica<CopiaDelDia>();
    if (vista.dia != ahora.date() || vista.ruta != ruta) {
        vista = {.ruta = ruta, .dia = ahora.date(), .fallo = {}};
    }
    if (vista.hecha) {
        return;
    }
    ConAlmacen(ClaseAlmacen::Usuario, ruta, [&](Almacen& almacen) {
        const QString carpeta = CarpetaDeCopiasAutomaticas(ruta);
        vista.fallo = std::nullopt;
        if (!HayCopiaDelDia(carpeta, ahora.date())) {
            vista.fallo = Intentar(carpeta, [&] { CopiarEntreLasAutomaticas(almacen, ahora); });
        }
        vista.hecha = !vista.fallo;
    });
}

void AvisarDeLaCopiaDelDia() {
    auto& vista = InstanciaUnica<CopiaDelDia>();
    if (vista.fallo && !std::exchange(vista.avisado, true)) {
        Copias()->AvisarSinCopiaDelDia(*vista.fallo);
    }
}

void CopiarPrimerosDatos(const QString& ruta) {
    if (Copias() == nullptr) {
        return;
    }
    (void)Intentar(ruta, [&] {
        ConAlmacen(ClaseAlmacen::Usuario, ruta, [&](Almacen& almacen) {
            const bool hayDatos = Consulta(almacen, "SELECT 1 FROM T05_DECLARANTES").Siguiente();
            if (hayDatos && !HayCopiaConDatos(CarpetaDeCopiasAutomaticas(ruta))) {
                CopiarEntreLasAutomaticas(almacen, Copias()->Ahora());
            }
        });
    });
}
