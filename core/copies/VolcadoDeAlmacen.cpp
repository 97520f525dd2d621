#include "core/copies/VolcadoDeAlmacen.h"

#include <SQLiteCpp/Backup.h>
#include <sqlite3.h>

#include <QRegularExpression>
#include <algorithm>

#include "core/base/plataforma/SistemaFicheros.h"
#include "core/copies/RevisionDeCopia.h"
#include "core/store/Almacen.h"

using namespace Qt::StringLiterals;

namespace {

/// Pages between two looks at the progress.
constexpr int kPaginas = 256;
/// A copy that others' writes have made start anew so often is finished in one go, others waiting.
constexpr int kReinicios = 3;
constexpr int kVolcado = 80;
constexpr int kTodo = 100;

std::string Identificador(const QString& nombre) {
    static const QRegularExpression valido(u"^[A-Za-z_][A-Za-z0-9_]*$"_s);
    if (!valido.match(nombre).hasMatch()) {
        throw ErrorZT(NumError::AlmacenOrden);
    }
    return nombre.toStdString();
}

void CopiarPaginas(SQLite::Database& destino, SQLite::Database& origen, const AvanceDeCopia& avance) {
    SQLite::Backup volcado(destino, origen);
    int hechas = 0;
    int reinicios = 0;
    for (;;) {
        const int resultado = volcado.executeStep(reinicios < kReinicios ? kPaginas : -1);
        if (resultado == SQLITE_DONE) {
            return;
        }
        if (resultado != SQLITE_OK) {
            throw SQLite::Exception("database is locked", resultado);
        }
        const int total = std::max(1, volcado.getTotalPageCount());
        const int ahora = total - volcado.getRemainingPageCount();
        if (ahora <= hechas) {
            ++reinicios;
        } else {
            avance(static_cast<int>(qint64{ahora} * kTodo / total));
        }
        hechas = ahora;
    }
}

}  // namespace

void AnotarFecha(SQLite::Database& base, const FechaDeCopia& fecha) {
    SQLite::Statement orden(
        base, "UPDATE \"" + Identificador(fecha.tabla) + "\" SET \"" + Identificador(fecha.campo) + "\" = ?");
    orden.bind(1, fecha.fecha);
    orden.exec();
}

QDate FechaAnotada(const QString& ruta, const QString& tabla, const QString& campo) {
    return LeerUsuario(ruta, [&](Almacen& almacen) {
        const std::string sql =
            "SELECT \"" + Identificador(campo) + "\" FROM \"" + Identificador(tabla) + '"';
        return QDate::fromString(QString::fromUtf8(almacen.Base().execAndGet(sql).getText()), u"yyyyMMdd"_s);
    });
}

void VolcarAlmacen(SQLite::Database& origen, const QString& ruta, const std::optional<FechaDeCopia>& fecha,
                   const AvanceDeCopia& avance) {
    {
        SQLite::Database copia(ruta.toUtf8().constData(), SQLite::OPEN_READWRITE);
        // What is cut short is thrown away, so that nothing has to be undone or synced on the way.
        ConCausaDelSistema(copia, [&] {
            copia.exec("PRAGMA journal_mode = OFF");
            copia.exec("PRAGMA synchronous = OFF");
            CopiarPaginas(copia, origen, Tramo(avance, 0, kVolcado));
            if (fecha) {
                AnotarFecha(copia, *fecha);
            }
        });
    }
    (void)RevisarAlmacen(ruta);
    SincronizarFichero(ruta);
    avance(kTodo);
}

AvanceDeCopia Tramo(const AvanceDeCopia& avance, int desde, int hasta) {
    return [avance, desde, hasta](int porcentaje) { avance(desde + (hasta - desde) * porcentaje / kTodo); };
}
