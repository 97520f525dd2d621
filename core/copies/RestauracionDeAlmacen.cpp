#include "core/copies/RestauracionDeAlmacen.h"

#include <QFile>
#include <QFileInfo>
#include <memory>

#include "core/base/FicheroProvisional.h"
#include "core/copies/CopiasAutomaticas.h"
#include "core/copies/ErrorDeCopia.h"
#include "core/copies/RevisionDeCopia.h"
#include "core/copies/SumaDeFichero.h"
#include "core/copies/VolcadoDeAlmacen.h"
#include "core/store/AperturaAlmacen.h"
#include "core/store/EsperaDeTurno.h"
#include "core/store/Integridad.h"
#include "core/store/Migracion.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTraida = 50;
constexpr int kComprobada = 70;
constexpr int kConservado = 95;
constexpr int kTodo = 100;

/// What fails in `cuerpo` comes out as a failure over the file at `ruta`.
template <class F>
void ConFichero(const QString& ruta, F&& cuerpo) {
    try {
        cuerpo();
    } catch (const SQLite::Exception& error) {
        throw ErrorDeCopia(FalloDeAlmacen(error, ruta), ruta);
    } catch (const ErrorZT& error) {
        throw ErrorDeCopia(error, ruta);
    }
}

/// Brings the copy into `provisional`. A copy without a checksum can be the file of a program that was cut
/// short; the journal that undoes its last write comes along.
void Traer(const QString& copia, const QString& provisional, const AvanceDeCopia& avance) {
    // A file that is none of this program's is refused by its first bytes, before it is copied.
    const Almacen mirada(ClaseAlmacen::Copia, copia, Versiones::LaActualYAnteriores);
    ExigirSuma(copia, CopiarContenido(copia, provisional, avance));
    const QString diario = copia + u"-journal"_s;
    if (!SumaAnotada(copia) && ExaminarFichero(diario).clase == ClaseFichero::Regular) {
        (void)CopiarContenido(diario, provisional + u"-journal"_s, SinAvance);
    }
}

void Comprobar(const QString& ruta) {
    {
        Almacen almacen(ClaseAlmacen::Usuario, ruta, Versiones::LaActualYAnteriores);
        ConCausaDelSistema(almacen.Base(), [&almacen] { ComprobarIntegridad(almacen); });
    }
    (void)RevisarAlmacen(ruta);
    SincronizarFichero(ruta);
}

/// Whether the file has the first bytes of a store and can be in use as one, if only by a newer program. What
/// a crash left half-written in it is undone by the look at it.
bool PuedeEstarEnUso(const QString& ruta) {
    const auto fallo = Intentar(ruta, [&] {
        ConFichero(ruta,
                   [&] { const Almacen vivo(ClaseAlmacen::Usuario, ruta, Versiones::LaActualYAnteriores); });
    });
    return !fallo || !EsDelContenido(fallo->motivo) || fallo->motivo == MotivoDeCopia::Version;
}

/// Takes the store for itself, in no transaction. Nothing when no program can be using the file, which then
/// is not opened: its journal is not for this program to play.
std::unique_ptr<SQLite::Database> Retener(const QString& ruta) {
    if (!PuedeEstarEnUso(ruta)) {
        return nullptr;
    }
    auto base = std::make_unique<SQLite::Database>(ruta.toUtf8().constData(), SQLite::OPEN_READWRITE);
    PonerEspera(*base);
    base->exec("BEGIN EXCLUSIVE");
    // From here on the lock outlives the transaction.
    base->exec("PRAGMA locking_mode = EXCLUSIVE");
    base->exec("COMMIT");
    return base;
}

void Apartar(const QString& ruta) {
    for (int n = 1; !ConservarFichero(ruta, ruta + u".%1.rechazado"_s.arg(n)); ++n) {
    }
}

/// Keeps the file that is to be replaced. Gives the automatic copy of it, empty when the file itself was
/// kept.
QString Conservar(SQLite::Database* base, const QString& ruta, const QDateTime& ahora) {
    if (base != nullptr) {
        try {
            return HacerCopiaAutomatica(*base, ruta, Ocasion::Restauracion, ahora);
        } catch (const ErrorZT& error) {
            const MotivoDeCopia motivo = FalloDe(error, ruta).motivo;
            // What cannot be read through is kept as it is.
            if (!EsDelContenido(motivo) && motivo != MotivoDeCopia::Otro &&
                motivo != MotivoDeCopia::ErrorDeDisco) {
                throw;
            }
        }
    }
    Apartar(ruta);
    return {};
}

/// Sets what is no file aside as it is, a link and not what it leads to.
void ApartarOtraCosa(const QString& ruta) {
    for (int n = 1; !CambiarNombre(ruta, ruta + u".%1.rechazado"_s.arg(n)); ++n) {
    }
}

/// The file that is to be replaced: the one that links lead to, or what stands at the path itself where that
/// is none.
QString Sustituible(const QString& almacen) {
    const ClaseFichero clase = ExaminarFichero(almacen).clase;
    const bool fichero = clase == ClaseFichero::Regular || clase == ClaseFichero::NoExiste;
    return fichero ? RutaReal(almacen) : almacen;
}

void Sustituir(const QString& nuevo, const QString& ruta, const QDateTime& ahora,
               const AvanceDeCopia& avance) {
    const ClaseFichero clase = ExaminarFichero(ruta).clase;
    if (clase != ClaseFichero::Regular) {
        if (clase != ClaseFichero::NoExiste) {
            ApartarOtraCosa(ruta);
        }
        ApartarRestos(ruta);
        SustituirFichero(nuevo, ruta);
        return;
    }
    std::unique_ptr<SQLite::Database> retenido = Retener(ruta);
    const QString anterior = Conservar(retenido.get(), ruta, ahora);
    avance(kConservado);
    // No journal of the file that goes may be taken for one of the file that comes.
    ApartarRestos(ruta);
    if (!SePuedeSustituirAbierto()) {
        retenido.reset();
    }
    SustituirFichero(nuevo, ruta);
    if (!anterior.isEmpty()) {
        PodarCopiasAutomaticas(QFileInfo(anterior).path(), anterior);
    }
}

}  // namespace

void RestaurarAlmacen(const QString& copia, const QString& almacen, const QDateTime& ahora,
                      const AvanceDeCopia& avance) {
    const AccionDeAlmacen accion;
    const QString origen = RutaReal(copia);
    const QString ruta = Sustituible(almacen);
    const EstadoFichero estado = ExigirFicheroRegular(origen);
    if (estado.MismoFichero(ExaminarFichero(ruta))) {
        throw ErrorDeCopia(MotivoDeCopia::EsFicheroDelPrograma, copia);
    }
    const FicheroProvisional nuevo(ruta);
    ConFichero(copia, [&] {
        Traer(origen, nuevo.Ruta(), Tramo(avance, 0, kTraida));
        Comprobar(nuevo.Ruta());
    });
    avance(kComprobada);
    CerrarAlmacenes();
    ConFichero(almacen, [&] { Sustituir(nuevo.Ruta(), ruta, ahora, avance); });
    avance(kTodo);
}
