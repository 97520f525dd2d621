#include "core/copies/CopiasAutomaticas.h"

#include <QDir>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <optional>

#include "core/base/CarpetaNueva.h"
#include "core/base/plataforma/SistemaFicheros.h"
#include "core/copies/ErrorDeCopia.h"
#include "core/copies/RevisionDeCopia.h"
#include "core/copies/SumaDeFichero.h"
#include "core/copies/VolcadoDeAlmacen.h"
#include "core/store/FalloAlmacen.h"
#include "core/store/Migracion.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kConservadas = 10;

constexpr std::array<QStringView, 3> kOcasiones{u"diaria", u"migracion", u"restauracion"};

QString NombreDe(const QDateTime& momento, Ocasion ocasion) {
    return u"ZELTMOD-%1-%2.mdb"_s.arg(momento.toString(u"yyyyMMdd-hhmmss-zzz"_s),
                                      kOcasiones.at(static_cast<std::size_t>(ocasion)));
}

/// Moment and occasion of a copy by its name; nothing for a name of another form.
struct Rasgos {
    QDateTime momento;
    QString ocasion;
};

std::optional<Rasgos> RasgosDe(const QString& nombre) {
    static const QRegularExpression forma(
        u"^ZELTMOD-(\\d{8}-\\d{6}-\\d{3})-(diaria|migracion|restauracion)\\.mdb$"_s);
    const QRegularExpressionMatch partes = forma.match(nombre);
    const QDateTime momento = QDateTime::fromString(partes.captured(1), u"yyyyMMdd-hhmmss-zzz"_s);
    return momento.isValid() ? std::optional(Rasgos{momento, partes.captured(2)}) : std::nullopt;
}

/// Names of the automatic copies, the latest first.
QStringList Nombres(const QString& carpeta) {
    QStringList nombres =
        QDir(carpeta).entryList({u"ZELTMOD-*.mdb"_s}, QDir::Files, QDir::Name | QDir::Reversed);
    nombres.removeIf([](const QString& nombre) { return !RasgosDe(nombre); });
    return nombres;
}

/// Gives the finished copy a name that is free, a millisecond later than the one that is taken, and its sum
/// beside it.
QString Publicar(const QString& provisional, const QDir& carpeta, Ocasion ocasion, QDateTime momento) {
    const QByteArray suma = SumaDeFichero(provisional);
    for (;; momento = momento.addMSecs(1)) {
        QString ruta = carpeta.filePath(NombreDe(momento, ocasion));
        if (ExaminarFichero(ruta).clase != ClaseFichero::NoExiste) {
            continue;
        }
        const SumaPreparada preparada(ruta, suma);
        ApartarRestos(ruta);
        if (PublicarFichero(provisional, ruta)) {
            preparada.Publicar();
            return ruta;
        }
    }
}

}  // namespace

QString CarpetaDeCopiasAutomaticas(const QString& almacen) {
    return QDir::cleanPath(QFileInfo(almacen).absolutePath() + u"/../backups/auto"_s);
}

QString HacerCopiaAutomatica(SQLite::Database& base, const QString& almacen, Ocasion ocasion,
                             const QDateTime& ahora) {
    const QDir carpeta(CarpetaDeCopiasAutomaticas(almacen));
    try {
        CrearCarpeta(carpeta.path(), NumError::ErrorAccesoRuta, Lectores::ElUsuario);
    } catch (const ErrorZT& error) {
        throw ErrorDeCopia(error, carpeta.path());
    }
    try {
        const FicheroProvisional provisional(carpeta.filePath(u"ZELTMOD.mdb"_s));
        VolcarAlmacen(base, provisional.Ruta(), std::nullopt, SinAvance);
        return Publicar(provisional.Ruta(), carpeta, ocasion, ahora);
    } catch (const SQLite::Exception& error) {
        throw FalloDeAlmacen(error, almacen);
    }
}

void PodarCopiasAutomaticas(const QString& carpeta, const QString& reciente) {
    QStringList nombres = Nombres(carpeta);
    nombres.removeOne(QFileInfo(reciente).fileName());
    for (const QString& nombre : nombres.mid(kConservadas - 1)) {
        const QString ruta = QDir(carpeta).filePath(nombre);
        if (QFile::remove(ruta)) {
            QFile::remove(RutaDeSuma(ruta));
        }
    }
}

bool HayCopiaDelDia(const QString& carpeta, QDate dia) {
    return !QDir(carpeta)
                .entryList({u"ZELTMOD-%1-*-diaria.mdb"_s.arg(dia.toString(u"yyyyMMdd"_s))}, QDir::Files)
                .isEmpty();
}

bool HayCopiaConDatos(const QString& carpeta) {
    return std::ranges::any_of(Nombres(carpeta), [&](const QString& nombre) {
        bool hay = false;
        const QString ruta = QDir(carpeta).filePath(nombre);
        (void)Intentar(ruta, [&] { hay = RevisarCopia(ruta).declarantes > 0; });
        return hay;
    });
}

std::vector<ResumenDeCopia> CopiasAutomaticas(const QString& carpeta) {
    std::vector<ResumenDeCopia> copias;
    for (const QString& nombre : Nombres(carpeta)) {
        const QString ruta = QDir(carpeta).filePath(nombre);
        // One that is no longer sound is not offered.
        (void)Intentar(ruta, [&] {
            ResumenDeCopia copia = RevisarCopia(ruta);
            copia.fecha = RasgosDe(nombre)->momento.date();
            copia.hora = RasgosDe(nombre)->momento.time();
            copias.push_back(copia);
        });
    }
    return copias;
}
