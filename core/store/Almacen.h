#pragma once

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>

#include <QString>
#include <memory>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <utility>

#include "core/base/plataforma/SistemaFicheros.h"
#include "core/store/Almacenes.h"
#include "core/store/AperturaAlmacen.h"
#include "core/store/EsperaDeTurno.h"
#include "core/store/FalloAlmacen.h"

/// An open store: one connection with its prepared statements.
///
/// Opening never creates and never changes a file. What is not a store of this kind is refused before any
/// statement runs on it. A file is untrusted input: the schema in it runs no trigger and no view, and on a
/// reference store nothing but reading is let through.
class Almacen {
  public:
    /// Opens. Raises 3024 (not found), 3051 (not to be opened), 3343 (foreign), 3049 (damaged), 3340
    /// (version) or 3260 (busy), each with the file and the cause.
    Almacen(ClaseAlmacen clase, QString ruta, Versiones versiones = Versiones::LaActual);

    [[nodiscard]] const QString& Ruta() const { return m_ruta; }
    [[nodiscard]] SQLite::Database& Base() { return m_base; }

    /// `user_version` of the store.
    [[nodiscard]] qint32 Version();

    /// The file as it stood when it was opened or last written through this connection.
    [[nodiscard]] const EstadoFichero& Estado() const { return m_estado; }
    /// To be called after a write of this connection: the new contents are its own. Another file under the
    /// same path is not taken over.
    void AnotarEscritura();

    /// Takes a statement out of those kept, or prepares it. `sql` has to be a text of static storage.
    [[nodiscard]] std::unique_ptr<SQLite::Statement> Tomar(const char* sql);
    /// Puts it back for the next call.
    void Devolver(const char* sql, std::unique_ptr<SQLite::Statement> orden);

  private:
    QString m_ruta;
    EstadoFichero m_estado;
    SQLite::Database m_base;
    std::unordered_map<std::string_view, std::unique_ptr<SQLite::Statement>> m_ordenes;
};

/// The open store at `ruta`. The connection is kept between calls and dropped when the file at the path is
/// another one or was changed by others. Raises what `Almacen` raises.
std::shared_ptr<Almacen> AbrirAlmacen(ClaseAlmacen clase, const QString& ruta);

/// A transaction that takes the right to write at once, and undoes everything unless it is confirmed.
class Transaccion {
  public:
    /// Raises 3260 when another program has put another file in the place of this one meanwhile: what would
    /// be written into the old one would be lost.
    explicit Transaccion(Almacen& almacen);
    ~Transaccion();
    Transaccion(const Transaccion&) = delete;
    Transaccion& operator=(const Transaccion&) = delete;

    /// Everything is on disk on return.
    void Confirmar();

  private:
    Almacen& m_almacen;
    bool m_confirmada = false;
};

/// Several reads that see the store as it stood at one moment, whatever others write meanwhile.
class Lectura {
  public:
    explicit Lectura(Almacen& almacen);
    ~Lectura();
    Lectura(const Lectura&) = delete;
    Lectura& operator=(const Lectura&) = delete;

  private:
    Almacen& m_almacen;
};

/// Runs `cuerpo` on the open store and gives its result. Failures of the library come out as `ErrorZT`.
template <class F>
auto ConAlmacen(ClaseAlmacen clase, const QString& ruta, F&& cuerpo) {
    const AccionDeAlmacen accion;
    try {
        const std::shared_ptr<Almacen> almacen = AbrirAlmacen(clase, ruta);
        return ConCausaDelSistema(almacen->Base(), [&] { return cuerpo(*almacen); });
    } catch (const SQLite::Exception& error) {
        throw FalloDeAlmacen(error, ruta);
    }
}

template <class F>
auto LeerReferencia(const QString& ruta, F&& cuerpo) {
    return ConAlmacen(ClaseAlmacen::Referencia, ruta, cuerpo);
}

template <class F>
auto LeerUsuario(const QString& ruta, F&& cuerpo) {
    return ConAlmacen(ClaseAlmacen::Usuario, ruta, cuerpo);
}

/// Runs `cuerpo` as one transaction on the user's store: all of it is on disk on return, or, after a
/// failure, nothing. For settings of the program; the user's data are written by `EscribirUsuario`, which has
/// a copy of the day made first.
template <class F>
auto EscribirAjustes(const QString& ruta, F&& cuerpo) {
    return ConAlmacen(ClaseAlmacen::Usuario, ruta, [&](Almacen& almacen) {
        Transaccion transaccion(almacen);
        if constexpr (std::is_void_v<std::invoke_result_t<F&, Almacen&>>) {
            cuerpo(almacen);
            transaccion.Confirmar();
        } else {
            auto resultado = cuerpo(almacen);
            transaccion.Confirmar();
            return resultado;
        }
    });
}
