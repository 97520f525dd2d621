#include "core/store/AperturaAlmacen.h"

#include <sqlite3.h>

#include <QByteArray>
#include <QFileInfo>
#include <QUrl>
#include <QtEndian>
#include <array>
#include <cstring>

#include "core/base/TextosPropios.h"
#include "core/store/EsperaDeTurno.h"
#include "core/store/FalloAlmacen.h"
#include "core/store/esquema/Alfabetico.h"
#include "core/store/esquema/Esquema.h"

using namespace Qt::StringLiterals;

namespace {

// Places in the header of the file format, in bytes.
constexpr int kTamanoCabecera = 100;
constexpr int kLugarFormato = 18;
constexpr int kLugarVersion = 60;
constexpr int kLugarAplicacion = 68;
/// The latest version of the file format for writing; with a later one the library only reads.
constexpr uchar kFormato = 2;
constexpr char kFirma[] = "SQLite format 3";

struct Rasgos {
    qint32 aplicacion;
    qint32 version;
};

Rasgos RasgosDe(ClaseAlmacen clase) {
    return clase == ClaseAlmacen::Referencia ? Rasgos{kAplicacionReferencia, kVersionReferencia}
                                             : Rasgos{kAplicacionUsuario, kVersionUsuario};
}

/// The reference store and copies are opened as files that nobody changes: no locks, no look for a journal.
/// Whether the reference store was replaced is checked at every call by its state.
SQLite::Database AbrirConexion(ClaseAlmacen clase, const QString& ruta, int espera) {
    const QString absoluta = QFileInfo(ruta).absoluteFilePath();
    if (clase == ClaseAlmacen::Usuario) {
        return {absoluta.toUtf8().constData(), SQLite::OPEN_READWRITE, espera};
    }
    const QByteArray codificada = QUrl::toPercentEncoding(absoluta, "/:");
    const QByteArray raiz = absoluta.startsWith(u'/') ? "file://" : "file:///";
    return {(raiz + codificada + "?immutable=1").constData(), SQLite::OPEN_READONLY | SQLite::OPEN_URI,
            espera};
}

/// The file of the connection, as the library has it open.
sqlite3_file* FicheroDe(SQLite::Database& base) {
    sqlite3_file* fichero = nullptr;
    base.check(sqlite3_file_control(base.getHandle(), "main", SQLITE_FCNTL_FILE_POINTER,
                                    static_cast<void*>(&fichero)));
    return fichero;
}

ErrorZT FicheroCortado(const QString& ruta) {
    return FalloDeAlmacen(NumError::AlmacenDanado, ruta, TextoPropio(u"causa_cortado"));
}

/// Reads the header through the connection's own file. Opening the file a second time would drop the locks
/// that this process holds on it, and a statement would touch the file (journals) before it is known.
std::array<uchar, kTamanoCabecera> LeerCabecera(SQLite::Database& base, const QString& ruta) {
    sqlite3_file* fichero = FicheroDe(base);
    sqlite3_int64 tamano = 0;
    std::array<uchar, kTamanoCabecera> cabecera{};
    base.check(fichero->pMethods->xFileSize(fichero, &tamano));
    if (tamano == 0) {
        throw FalloDeAlmacen(NumError::AlmacenDanado, ruta, TextoPropio(u"causa_vacio"));
    }
    const int resultado = fichero->pMethods->xRead(fichero, cabecera.data(), kTamanoCabecera, 0);
    if (resultado != SQLITE_IOERR_SHORT_READ) {
        base.check(resultado);
    }
    if (std::memcmp(cabecera.data(), kFirma, sizeof kFirma) != 0) {
        throw FalloDeAlmacen(NumError::AlmacenAjeno, ruta, TextoPropio(u"causa_otra_clase"));
    }
    if (resultado == SQLITE_IOERR_SHORT_READ) {
        throw FicheroCortado(ruta);
    }
    return cabecera;
}

ErrorZT VersionMasNueva(const QString& ruta, qint32 version) {
    return FalloDeAlmacen(NumError::AlmacenVersion, ruta, TextoPropio(u"causa_version_nueva").arg(version));
}

void ComprobarCabecera(SQLite::Database& base, ClaseAlmacen clase, const QString& ruta) {
    const auto cabecera = LeerCabecera(base, ruta);
    const auto rasgos = RasgosDe(clase);
    if (qFromBigEndian<qint32>(cabecera.data() + kLugarAplicacion) != rasgos.aplicacion) {
        throw FalloDeAlmacen(NumError::AlmacenAjeno, ruta, TextoPropio(u"causa_otra_base"));
    }
    if (cabecera.at(kLugarFormato) > kFormato) {
        throw FalloDeAlmacen(NumError::AlmacenDanado, ruta, TextoPropio(u"causa_cabecera"));
    }
    const auto version = qFromBigEndian<qint32>(cabecera.data() + kLugarVersion);
    if (version > rasgos.version) {
        throw VersionMasNueva(ruta, version);
    }
}

/// Nothing but reading rows passes on a reference store, whatever the text of the order.
int SoloLecturas(void* /*datos*/, int accion, const char* /*a*/, const char* /*b*/, const char* /*base*/,
                 const char* /*origen*/) {
    const bool lectura = accion == SQLITE_SELECT || accion == SQLITE_READ || accion == SQLITE_FUNCTION;
    return lectura ? SQLITE_OK : SQLITE_DENY;
}

void Proteger(SQLite::Database& base) {
    sqlite3* manejador = base.getHandle();
    base.check(sqlite3_db_config(manejador, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr));
    for (const int opcion :
         {SQLITE_DBCONFIG_TRUSTED_SCHEMA, SQLITE_DBCONFIG_ENABLE_TRIGGER, SQLITE_DBCONFIG_ENABLE_VIEW}) {
        base.check(sqlite3_db_config(manejador, opcion, 0, nullptr));
    }
    base.exec("PRAGMA cell_size_check = ON");
}

void Preparar(SQLite::Database& base, ClaseAlmacen clase) {
    switch (clase) {
        case ClaseAlmacen::Usuario:
            base.exec("PRAGMA journal_mode = DELETE");
            base.exec("PRAGMA synchronous = EXTRA");
            base.exec("PRAGMA foreign_keys = ON");
            break;
        case ClaseAlmacen::Referencia:
            base.check(RegistrarAlfabetico(base.getHandle()));
            base.check(sqlite3_set_authorizer(base.getHandle(), SoloLecturas, nullptr));
            break;
        case ClaseAlmacen::Copia:
            break;
    }
}

/// What stands in the place of a store, where that is no file.
QString QueEs(ClaseFichero clase) {
    switch (clase) {
        case ClaseFichero::Carpeta:
            return TextoPropio(u"causa_es_carpeta");
        case ClaseFichero::Tuberia:
            return TextoPropio(u"causa_es_tuberia");
        case ClaseFichero::Dispositivo:
            return TextoPropio(u"causa_es_dispositivo");
        case ClaseFichero::Conector:
            return TextoPropio(u"causa_es_conector");
        case ClaseFichero::BucleDeEnlaces:
            return TextoPropio(u"causa_es_bucle");
        case ClaseFichero::Otra:
            return TextoPropio(u"causa_no_es_fichero");
        default:
            return {};
    }
}

/// The library counts a page that has begun as a whole one, and reads zeros where it ends. Pages and length
/// are asked while nobody can write.
void ComprobarTamano(SQLite::Database& base, const QString& ruta) {
    sqlite3_int64 tamano = 0;
    base.exec("BEGIN");
    const qint64 paginas = base.execAndGet("PRAGMA page_count").getInt64();
    const qint64 pagina = base.execAndGet("PRAGMA page_size").getInt64();
    sqlite3_file* fichero = FicheroDe(base);
    base.check(fichero->pMethods->xFileSize(fichero, &tamano));
    base.exec("COMMIT");
    if (tamano < paginas * pagina) {
        throw FicheroCortado(ruta);
    }
}

/// The version after the library has undone what a crash may have left half-written. A reference store is put
/// there with its version or not at all: one without any is damaged.
void ComprobarVersion(SQLite::Database& base, ClaseAlmacen clase, const QString& ruta, Versiones versiones) {
    const qint32 actual = RasgosDe(clase).version;
    const qint32 version = base.execAndGet("PRAGMA user_version").getInt();
    if (version > actual) {
        throw VersionMasNueva(ruta, version);
    }
    if (version < 1) {
        const bool danado = clase == ClaseAlmacen::Referencia;
        throw FalloDeAlmacen(danado ? NumError::AlmacenDanado : NumError::AlmacenVersion, ruta,
                             TextoPropio(u"causa_sin_version"));
    }
    if (version < actual && versiones == Versiones::LaActual) {
        throw FalloDeAlmacen(NumError::AlmacenVersion, ruta,
                             TextoPropio(u"causa_version_anterior").arg(version));
    }
}

}  // namespace

EstadoFichero ExigirFicheroRegular(const QString& ruta) {
    const EstadoFichero estado = ExaminarFichero(ruta);
    if (estado.clase == ClaseFichero::Regular) {
        return estado;
    }
    if (estado.clase == ClaseFichero::NoExiste) {
        throw FalloDeAlmacen(NumError::AlmacenNoEncontrado, ruta);
    }
    throw FalloDeAlmacen(NumError::AlmacenSinPermiso, ruta, QueEs(estado.clase));
}

SQLite::Database AbrirBase(ClaseAlmacen clase, const QString& ruta, Versiones versiones, int espera) {
    SQLite::Database base = AbrirConexion(clase, ruta, espera);
    PonerEspera(base);
    ConCausaDelSistema(base, [&] {
        ComprobarCabecera(base, clase, ruta);
        ConOrdenesPropias(ruta, [&] {
            Proteger(base);
            ComprobarVersion(base, clase, ruta, versiones);
            ComprobarTamano(base, ruta);
            Preparar(base, clase);
        });
    });
    return base;
}
