#include "core/services/svrZELT/cZTTraspaso.h"

#include <QDir>
#include <QFileInfo>
#include <utility>
#include <vector>

#include "core/base/plataforma/SistemaFicheros.h"
#include "core/copies/CopiaDelDia.h"
#include "core/copies/CopiasAutomaticas.h"
#include "core/copies/ErrorDeCopia.h"
#include "core/copies/MigracionDeAlmacen.h"
#include "core/copies/RestauracionDeAlmacen.h"
#include "core/store/Almacenes.h"
#include "core/store/FalloAlmacen.h"

namespace svrZELT {

namespace {

class Vuelta : public TareaDeVuelta {
  public:
    Vuelta(QString almacen, FalloDeCopia rechazo, std::vector<ResumenDeCopia> copias)
        : m_almacen(std::move(almacen)), m_rechazo(std::move(rechazo)), m_copias(std::move(copias)) {}

    [[nodiscard]] const FalloDeCopia& Rechazo() const override { return m_rechazo; }
    [[nodiscard]] const std::vector<ResumenDeCopia>& Copias() const override { return m_copias; }
    [[nodiscard]] std::optional<FalloDeCopia> Volver(const QString& ruta,
                                                     const AvanceDeCopia& avance) override {
        return Intentar(ruta, [&] { RestaurarAlmacen(ruta, m_almacen, AhoraDeCopias(), avance); });
    }

  private:
    QString m_almacen;
    FalloDeCopia m_rechazo;
    std::vector<ResumenDeCopia> m_copias;
};

std::vector<ResumenDeCopia> CopiasDe(const QString& almacen) {
    return CopiasAutomaticas(CarpetaDeCopiasAutomaticas(almacen));
}

/// A store that is missing although there are copies of it was not always missing: they are offered before an
/// empty one is made.
void OfrecerSiFalta(const QString& almacen) {
    if (ExaminarFichero(almacen).clase != ClaseFichero::NoExiste || !QFileInfo(almacen).dir().exists()) {
        return;
    }
    std::vector<ResumenDeCopia> copias = CopiasDe(almacen);
    if (!copias.empty()) {
        const ErrorZT falta = FalloDeAlmacen(NumError::AlmacenNoEncontrado, almacen);
        Vuelta vuelta(almacen, FalloDe(falta, almacen), std::move(copias));
        (void)::Copias()->PedirVuelta(vuelta);
    }
}

}  // namespace

bool cZTTraspaso::Traspaso() const {
    const auto migrar = [this] { MigrarAlmacen(mdbmod, AhoraDeCopias()); };
    if (::Copias() == nullptr) {
        migrar();
        return false;
    }
    OfrecerSiFalta(mdbmod);
    while (const auto rechazo = Intentar(mdbmod, migrar)) {
        // Going back helps where the file itself is at fault.
        const bool ayuda = EsDelContenido(rechazo->motivo) || EsOtraCosa(rechazo->motivo);
        Vuelta vuelta(mdbmod, *rechazo, ayuda ? CopiasDe(mdbmod) : std::vector<ResumenDeCopia>());
        if (!::Copias()->PedirVuelta(vuelta)) {
            return true;
        }
    }
    return false;
}

bool cZTTraspaso::EsDano(const ErrorZT& error) const {
    const bool suyo = error.Descripcion().contains(QDir::toNativeSeparators(mdbmod));
    return error.Numero() == static_cast<int>(NumError::AlmacenDanado) && suyo;
}

bool cZTTraspaso::Volver(const ErrorZT& dano) const {
    if (::Copias() == nullptr || !EsDano(dano)) {
        throw dano;
    }
    CerrarAlmacenes();
    Vuelta vuelta(mdbmod, FalloDe(dano, mdbmod), CopiasDe(mdbmod));
    return ::Copias()->PedirVuelta(vuelta);
}

void cZTTraspaso::CopiarPrimerosDatos() const { ::CopiarPrimerosDatos(mdbmod); }

}  // namespace svrZELT
