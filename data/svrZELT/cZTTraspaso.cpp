#include "data/svrZELT/cZTTraspaso.h"

#include <utility>

#include "data/CopiasAutomaticas.h"
#include "data/ErrorDeCopia.h"
#include "data/RestauracionDeAlmacen.h"
#include "data/TraspasoDeAlmacen.h"

namespace svrZELT {

namespace {

class Vuelta : public TareaDeVuelta {
  public:
    /// Going back helps where the file itself is at fault.
    Vuelta(QString almacen, FalloDeCopia rechazo)
        : m_almacen(std::move(almacen)), m_rechazo(std::move(rechazo)) {
        if (EsDelContenido(m_rechazo.motivo)) {
            m_copias = CopiasAutomaticas(CarpetaDeCopiasAutomaticas(m_almacen));
        }
    }

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

}  // namespace

bool cZTTraspaso::Traspaso() const {
    const auto traspasar = [this] { TraspasarAlmacen(mdbmod, AhoraDeCopias()); };
    if (::Copias() == nullptr) {
        traspasar();
        return false;
    }
    while (const auto rechazo = Intentar(mdbmod, traspasar)) {
        Vuelta vuelta(mdbmod, *rechazo);
        if (!::Copias()->PedirVuelta(vuelta)) {
            return true;
        }
    }
    return false;
}

}  // namespace svrZELT
