#include "core/services/SvrKLComunLib/cSaveAsRestore.h"

#include <QDir>

#include "core/copies/CopiaDeAlmacen.h"
#include "core/copies/ErrorDeCopia.h"
#include "core/copies/NombreDeCopia.h"
#include "core/copies/RestauracionDeAlmacen.h"
#include "core/copies/RevisionDeCopia.h"
#include "core/store/Almacen.h"

using namespace Qt::StringLiterals;

namespace SvrKLComunLib {

namespace {

CanalCopias& Canal() {
    if (::Copias() == nullptr) {
        throw ErrorZT(NumError::ObjetoNoEstablecido);
    }
    return *::Copias();
}

/// A folder as boxes show it: native, without the separator at its end.
QString ComoCarpeta(const QString& ruta) { return QDir::toNativeSeparators(QDir::cleanPath(ruta)); }

class Copia : public TareaDeCopia {
  public:
    explicit Copia(const cSaveAsRestore& orden) : m_orden(orden) {}

    [[nodiscard]] QString Carpeta() const override { return ComoCarpeta(m_orden.RutaDestino); }
    [[nodiscard]] QString Nombre() const override { return m_orden.ArchivoDestino; }
    [[nodiscard]] QString Filtro() const override { return FiltroDelDialogo(m_orden.Filtro); }

    [[nodiscard]] QDate UltimaCopia() const override {
        QDate fecha;
        // A store that cannot be read has none on record; the copy will tell why.
        (void)Intentar(Vivo(), [&] { fecha = FechaAnotada(Vivo(), m_orden.BDTabla, m_orden.BDCampo); });
        return fecha;
    }

    [[nodiscard]] Destino Elegir(const QString& carpeta, const QString& nombre) const override {
        Destino destino{DestinoDeCopia(carpeta, nombre), false, {}};
        destino.fallo = Intentar(destino.ruta, [&] {
            ExigirDestino(carpeta, nombre, m_orden.RutaDestino, {Vivo(), m_orden.BDLectura});
        });
        destino.existe = ExaminarFichero(destino.ruta).clase == ClaseFichero::Regular;
        return destino;
    }

    [[nodiscard]] std::optional<FalloDeCopia> Copiar(const QString& ruta,
                                                     const AvanceDeCopia& avance) override {
        const QDate hoy = Canal().Ahora().date();
        const FechaDeCopia fecha{m_orden.BDTabla, m_orden.BDCampo, hoy.toString(u"yyyyMMdd"_s).toInt()};
        if (auto fallo = Intentar(ruta, [&] { CopiarAlmacen(Vivo(), ruta, fecha, avance); })) {
            return fallo;
        }
        if (Intentar(Vivo(), [&] {
                EscribirAjustes(Vivo(), [&](Almacen& almacen) { AnotarFecha(almacen.Base(), fecha); });
            })) {
            return FalloDe(ErrorDeCopia(MotivoDeCopia::FechaSinAnotar, ruta), ruta);
        }
        return std::nullopt;
    }

  private:
    [[nodiscard]] QString Vivo() const { return m_orden.RutaOrigen + m_orden.ArchivoOrigen; }

    const cSaveAsRestore& m_orden;
};

class Restauracion : public TareaDeRestauracion {
  public:
    explicit Restauracion(const cSaveAsRestore& orden) : m_orden(orden) {}

    [[nodiscard]] QString Carpeta() const override { return ComoCarpeta(m_orden.RutaOrigen); }
    [[nodiscard]] QString Nombre() const override { return m_orden.ArchivoOrigen; }
    [[nodiscard]] QString Filtro() const override { return FiltroDelDialogo(m_orden.Filtro); }

    [[nodiscard]] Examen Examinar(const QString& carpeta, const QString& nombre) const override {
        Examen examen;
        const QString ruta = OrigenDeCopia(carpeta, nombre);
        examen.fallo = Intentar(ruta, [&] {
            ExigirOtroFichero(ruta, {Vivo()});
            examen.resumen = RevisarCopia(ruta);
        });
        return examen;
    }

    [[nodiscard]] std::optional<FalloDeCopia> Restaurar(const QString& ruta,
                                                        const AvanceDeCopia& avance) override {
        auto fallo = Intentar(ruta, [&] { RestaurarAlmacen(ruta, Vivo(), Canal().Ahora(), avance); });
        m_hecha = !fallo;
        return fallo;
    }

    [[nodiscard]] bool Hecha() const { return m_hecha; }

  private:
    [[nodiscard]] QString Vivo() const { return m_orden.RutaDestino + m_orden.ArchivoDestino; }

    const cSaveAsRestore& m_orden;
    bool m_hecha = false;
};

}  // namespace

void cSaveAsRestore::CrearBackup() const {
    Copia tarea(*this);
    Canal().PedirCopia(tarea);
}

bool cSaveAsRestore::CrearRestore() const {
    Restauracion tarea(*this);
    Canal().PedirRestauracion(tarea);
    return tarea.Hecha();
}

}  // namespace SvrKLComunLib
