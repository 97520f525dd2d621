#include "core/store/Almacen.h"

#include <QHash>

#include "core/base/Instancias.h"
#include "core/base/TextosPropios.h"
#include "core/store/AperturaAlmacen.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kEsperaHabitual = 5000;

struct ConexionesAbiertas {
    QHash<QString, std::shared_ptr<Almacen>> usuario;
    QHash<QString, std::shared_ptr<Almacen>> referencia;
};

int& Espera() {
    static int espera = kEsperaHabitual;
    return espera;
}

}  // namespace

// The state is taken before the file is opened: a replacement in between is then seen at the next call.
Almacen::Almacen(ClaseAlmacen clase, QString ruta, Versiones versiones)
    : m_ruta(std::move(ruta)),
      m_estado(ExigirFicheroRegular(m_ruta)),
      m_base(AbrirBase(clase, m_ruta, versiones, Espera())) {}

qint32 Almacen::Version() { return m_base.execAndGet("PRAGMA user_version").getInt(); }

void Almacen::AnotarEscritura() {
    const EstadoFichero ahora = ExaminarFichero(m_ruta);
    if (ahora.MismoFichero(m_estado)) {
        m_estado = ahora;
    }
}

std::unique_ptr<SQLite::Statement> Almacen::Tomar(const char* sql) {
    const auto lugar = m_ordenes.find(sql);
    if (lugar != m_ordenes.end() && lugar->second) {
        return std::move(lugar->second);
    }
    return std::make_unique<SQLite::Statement>(m_base, sql);
}

void Almacen::Devolver(const char* sql, std::unique_ptr<SQLite::Statement> orden) {
    m_ordenes[sql] = std::move(orden);
}

std::shared_ptr<Almacen> AbrirAlmacen(ClaseAlmacen clase, const QString& ruta) {
    auto& conexiones = InstanciaUnica<ConexionesAbiertas>();
    auto& abiertas = clase == ClaseAlmacen::Usuario ? conexiones.usuario : conexiones.referencia;
    const auto lugar = abiertas.constFind(ruta);
    if (lugar != abiertas.constEnd()) {
        if ((*lugar)->Estado() == ExaminarFichero(ruta)) {
            return *lugar;
        }
        abiertas.erase(lugar);
    }
    auto almacen = std::make_shared<Almacen>(clase, ruta);
    abiertas.insert(ruta, almacen);
    return almacen;
}

void CerrarAlmacenes() { InstanciaUnica<ConexionesAbiertas>() = {}; }

void FijarEsperaDeAlmacen(int milisegundos) {
    CerrarAlmacenes();
    Espera() = milisegundos;
}

int EsperaDeAlmacen() { return Espera(); }

Transaccion::Transaccion(Almacen& almacen) : m_almacen(almacen) {
    m_almacen.Base().exec("BEGIN IMMEDIATE");
    if (!ExaminarFichero(m_almacen.Ruta()).MismoFichero(m_almacen.Estado())) {
        m_almacen.Base().tryExec("ROLLBACK");
        throw FalloDeAlmacen(NumError::AlmacenOcupado, m_almacen.Ruta(), TextoPropio(u"causa_sustituido"));
    }
}

Transaccion::~Transaccion() {
    if (!m_confirmada) {
        // After some failures (disk full, I/O) the library has already undone it: nothing to look at here.
        m_almacen.Base().tryExec("ROLLBACK");
    }
}

void Transaccion::Confirmar() {
    m_almacen.Base().exec("COMMIT");
    m_confirmada = true;
    m_almacen.AnotarEscritura();
}

Lectura::Lectura(Almacen& almacen) : m_almacen(almacen) { m_almacen.Base().exec("BEGIN"); }

// Nothing was written: there is nothing that the end could fail to keep.
Lectura::~Lectura() { m_almacen.Base().tryExec("ROLLBACK"); }
