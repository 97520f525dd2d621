#include "core/store/Migracion.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <algorithm>
#include <string>

#include "core/base/FicheroProvisional.h"
#include "core/base/plataforma/SistemaFicheros.h"
#include "core/store/FalloAlmacen.h"

using namespace Qt::StringLiterals;

namespace {

void AnotarVersion(SQLite::Database& base, qint32 version) {
    base.exec("PRAGMA user_version = " + std::to_string(version));
}

/// Runs every step above `version` on the connection and sets the new version. The caller holds the
/// transaction.
void MigrarBase(SQLite::Database& base, qint32 version, std::span<const PasoDeEsquema> pasos) {
    for (const PasoDeEsquema& paso : pasos) {
        if (paso.hasta > version) {
            base.exec(paso.sql);
            AnotarVersion(base, paso.hasta);
        }
    }
}

/// Makes the store in an empty file that nobody else knows yet.
void Escribir(const QString& ruta) {
    SQLite::Database base(ruta.toUtf8().constData(), SQLite::OPEN_READWRITE);
    base.exec("PRAGMA synchronous = EXTRA");
    base.exec("PRAGMA foreign_keys = ON");
    base.exec("BEGIN IMMEDIATE");
    base.exec("PRAGMA application_id = " + std::to_string(kAplicacionUsuario));
    MigrarBase(base, 0, PasosDelUsuario());
    base.exec("COMMIT");
}

/// Name, kind and text of everything in a schema, in a fixed order.
QStringList Contenido(SQLite::Database& base) {
    SQLite::Statement orden(base,
                            "SELECT type || '|' || name || '|' || coalesce(sql, '') FROM sqlite_schema "
                            "ORDER BY 1");
    QStringList contenido;
    while (orden.executeStep()) {
        contenido += QString::fromUtf8(orden.getColumn(0).getText());
    }
    return contenido;
}

/// That of a fresh store of that version.
QStringList ContenidoEsperado(qint32 version, std::span<const PasoDeEsquema> pasos) {
    const auto siguiente =
        std::ranges::find_if(pasos, [&](const PasoDeEsquema& p) { return p.hasta > version; });
    SQLite::Database base(":memory:", SQLite::OPEN_READWRITE);
    MigrarBase(base, 0, {pasos.begin(), siguiente});
    return Contenido(base);
}

}  // namespace

void CrearAlmacenDeUsuario(const QString& ruta) {
    const QString carpeta = QFileInfo(ruta).absolutePath();
    if (!QFileInfo(carpeta).isDir()) {
        throw FalloDeAlmacen(NumError::NoExisteRuta, carpeta);
    }
    const FicheroProvisional provisional(ruta);
    try {
        Escribir(provisional.Ruta());
    } catch (const SQLite::Exception& error) {
        throw FalloDeAlmacen(error, ruta);
    }
    if (ExaminarFichero(ruta).clase == ClaseFichero::NoExiste) {
        ApartarRestos(ruta);
    }
    // False means that another program has made the store meanwhile: its file stays.
    (void)PublicarFichero(provisional.Ruta(), ruta);
}

void ApartarRestos(const QString& ruta) {
    for (const QString& sufijo : {u"-journal"_s, u"-wal"_s, u"-shm"_s}) {
        const QString resto = ruta + sufijo;
        for (int n = 1; QFile::exists(resto); ++n) {
            const QString libre = resto + u".%1.apartado"_s.arg(n);
            if (!QFile::exists(libre) && !QFile::rename(resto, libre)) {
                throw FalloDeAlmacen(NumError::AlmacenSinPermiso, resto,
                                     u"Es el resto de un fichero perdido y no se puede apartar."_s);
            }
        }
    }
}

void MigrarEsquema(Almacen& almacen, std::span<const PasoDeEsquema> pasos) {
    if (almacen.Version() >= pasos.back().hasta) {
        return;
    }
    Transaccion transaccion(almacen);
    // Asked again: another program may have done it while this one waited.
    MigrarBase(almacen.Base(), almacen.Version(), pasos);
    ComprobarIntegridad(almacen, pasos);
    transaccion.Confirmar();
}

void ComprobarIntegridad(Almacen& almacen, std::span<const PasoDeEsquema> pasos) {
    ConOrdenesPropias(almacen.Ruta(), [&] {
        SQLite::Database& base = almacen.Base();
        const QString paginas = QString::fromUtf8(base.execAndGet("PRAGMA quick_check(1)").getText());
        if (paginas != u"ok") {
            throw FalloDeAlmacen(NumError::AlmacenDanado, almacen.Ruta(), u"Su contenido no es coherente."_s);
        }
        if (Contenido(base) != ContenidoEsperado(almacen.Version(), pasos)) {
            throw FalloDeAlmacen(NumError::AlmacenDanado, almacen.Ruta(),
                                 u"Su estructura no es la de su versión."_s);
        }
        if (SQLite::Statement(base, "PRAGMA foreign_key_check").executeStep()) {
            throw FalloDeAlmacen(NumError::AlmacenDanado, almacen.Ruta(),
                                 u"Contiene datos que dependen de un registro que falta."_s);
        }
        if (base.execAndGet("SELECT count(*) FROM T00_GENERAL").getInt() != 1) {
            throw FalloDeAlmacen(NumError::AlmacenDanado, almacen.Ruta(),
                                 u"Falta la fila de datos generales."_s);
        }
    });
}
