#include "tools/generador/Generador.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QUrl>
#include <array>
#include <limits>
#include <map>
#include <string>

#include "core/base/Modelo.h"
#include "core/store/esquema/Alfabetico.h"
#include "core/store/esquema/Esquema.h"
#include "tools/generador/FicheroTsv.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kFactorEjercicio = 10;
constexpr int kMayor = std::numeric_limits<qint16>::max();

using Generales = QHash<QString, QString>;

int Trimestre(int ejercicio, int periodo) { return ejercicio * kFactorEjercicio + periodo; }

int TrimestreSiguiente(int trimestre) {
    const bool ultimo = trimestre % kFactorEjercicio == kTrimestres;
    return ultimo ? Trimestre(trimestre / kFactorEjercicio + 1, 1) : trimestre + 1;
}

/// Stores a table of a key and names; a key that stands twice is a fault of its row.
template <class F>
void Copiar(SQLite::Database& base, const FicheroTsv& tabla, const char* sql, F&& comprobarClave) {
    QHash<QString, int> vistas;
    for (const FilaTsv& fila : tabla.Filas()) {
        const QString clave = comprobarClave(fila);
        if (vistas.contains(clave)) {
            tabla.Fallar(fila, u"key already on line %1"_s.arg(vistas.value(clave)));
        }
        vistas.insert(clave, fila.linea);
        SQLite::Statement orden(base, sql);
        orden.bind(1, clave.toStdString());
        for (int i = 1; i < fila.campos.size(); ++i) {
            orden.bind(i + 1, fila.campos.at(i).toStdString());
        }
        orden.exec();
    }
}

void CopiarTablas(SQLite::Database& base, const QString& carpeta) {
    const FicheroTsv provincias(carpeta + u"/provincias.tsv"_s,
                                {u"T02_PROID"_s, u"T02_PROCAS"_s, u"T02_PROEUS"_s});
    Copiar(base, provincias, "INSERT INTO T02_Provincias VALUES (CAST(?1 AS INTEGER), ?2, ?3)",
           [&](const FilaTsv& fila) { return QString::number(provincias.Entero(fila, 0, 1, kMayor)); });
    const FicheroTsv vias(carpeta + u"/siglas_via.tsv"_s, {u"T03_CODIGO"_s, u"T03_CAS"_s, u"T03_EUS"_s});
    Copiar(base, vias, "INSERT INTO T03_SIGLASVIA VALUES (?1, ?2, ?3)", [&](const FilaTsv& fila) {
        if (fila.campos.at(0).size() != 2) {
            vias.Fallar(fila, u"the code has not two characters"_s);
        }
        return fila.campos.at(0);
    });
    const FicheroTsv municipios(carpeta + u"/municipios.tsv"_s, {u"T04_CODMUN"_s, u"T04_NOMMUN"_s});
    Copiar(base, municipios, "INSERT INTO T04_MUNICIPIOS VALUES (CAST(?1 AS INTEGER), ?2)",
           [&](const FilaTsv& fila) { return QString::number(municipios.Entero(fila, 0, 1, kMayor)); });
}

void ComprobarGeneral(const FicheroTsv& tabla, const FilaTsv& fila) {
    const QString& clave = fila.campos.at(0);
    if (clave.startsWith(u"Ejercicio")) {
        (void)tabla.Entero(fila, 1, 1000, kMayor / kFactorEjercicio);
    } else if (clave.startsWith(u"Periodo")) {
        (void)tabla.Entero(fila, 1, 1, kTrimestres);
    } else if (clave == u"VersionDatos") {
        (void)tabla.Entero(fila, 1, 1, std::numeric_limits<int>::max());
    } else if (clave.startsWith(u"URL")) {
        const QUrl direccion(fila.campos.at(1), QUrl::StrictMode);
        const bool web = direccion.scheme() == u"https" || direccion.scheme() == u"http";
        if (!direccion.isValid() || !web || direccion.host().isEmpty()) {
            tabla.Fallar(fila, u"\"%1\" is not a web address"_s.arg(fila.campos.at(1)));
        }
    }
}

Generales CopiarGenerales(SQLite::Database& base, const QString& ruta) {
    const QStringList claves{u"EjercicioMinimo"_s, u"PeriodoMinimo"_s,   u"EjercicioMaximo"_s,
                             u"PeriodoMaximo"_s,   u"DepartamentoCas"_s, u"DepartamentoEus"_s,
                             u"URLAct"_s,          u"URLAsistencia"_s,   u"URLInfoCas"_s,
                             u"URLInfoEus"_s,      u"VersionDatos"_s};
    const FicheroTsv tabla(ruta, {u"CLAVE"_s, u"VALOR"_s});
    Generales generales;
    Copiar(base, tabla, "INSERT INTO T01_DATOS VALUES (?1, ?2)", [&](const FilaTsv& fila) {
        if (!claves.contains(fila.campos.at(0))) {
            tabla.Fallar(fila, u"unknown general datum"_s);
        }
        ComprobarGeneral(tabla, fila);
        generales.insert(fila.campos.at(0), fila.campos.at(1));
        return fila.campos.at(0);
    });
    for (const QString& clave : claves) {
        if (!generales.contains(clave)) {
            throw FallaTsv(ruta, 0, u"lacks "_s + clave);
        }
    }
    return generales;
}

/// Intervals of a product by their first quarter: the last quarter.
using Intervalos = std::map<int, int>;

void Anadir(const FicheroTsv& tabla, const FilaTsv& fila, Intervalos& intervalos, int desde, int hasta) {
    if (hasta < desde) {
        tabla.Fallar(fila, u"the interval ends before it begins"_s);
    }
    for (const auto& [otroDesde, otroHasta] : intervalos) {
        if (desde <= otroHasta && otroDesde <= hasta) {
            tabla.Fallar(fila, u"the interval overlaps another one of the product"_s);
        }
    }
    intervalos[desde] = hasta;
}

bool Cubre(const Intervalos& intervalos, int trimestre) {
    const auto siguiente = intervalos.upper_bound(trimestre);
    return siguiente != intervalos.begin() && std::prev(siguiente)->second >= trimestre;
}

void CopiarTipos(SQLite::Database& base, const QString& ruta, const Generales& generales) {
    const FicheroTsv tabla(ruta, {u"PRODUCTO"_s, u"EJERCICIO_DESDE"_s, u"PERIODO_DESDE"_s,
                                  u"EJERCICIO_HASTA"_s, u"PERIODO_HASTA"_s, u"TIPO"_s});
    std::array<Intervalos, kProductos> intervalos;
    for (const FilaTsv& fila : tabla.Filas()) {
        const int producto = tabla.Entero(fila, 0, 1, kProductos);
        const int mayor = kMayor / kFactorEjercicio;
        const int desde = Trimestre(tabla.Entero(fila, 1, 1, mayor), tabla.Entero(fila, 2, 1, kTrimestres));
        const int hasta = Trimestre(tabla.Entero(fila, 3, 1, mayor), tabla.Entero(fila, 4, 1, kTrimestres));
        Anadir(tabla, fila, intervalos.at(static_cast<std::size_t>(producto - 1)), desde, hasta);
        SQLite::Statement orden(base, "INSERT INTO T09_TIPOS VALUES (?, ?, ?, ?)");
        orden.bind(1, producto);
        orden.bind(2, desde);
        orden.bind(3, hasta);
        orden.bind(4, static_cast<int64_t>(tabla.Millonesimas(fila, 5)));
        orden.exec();
    }
    const int primero =
        Trimestre(generales[u"EjercicioMinimo"_s].toInt(), generales[u"PeriodoMinimo"_s].toInt());
    const int ultimo =
        Trimestre(generales[u"EjercicioMaximo"_s].toInt(), generales[u"PeriodoMaximo"_s].toInt());
    for (int t = primero; t <= ultimo; t = TrimestreSiguiente(t)) {
        for (std::size_t i = 0; i < intervalos.size(); ++i) {
            if (!Cubre(intervalos.at(i), t)) {
                throw FallaTsv(ruta, 0, u"product %1 has no rate in quarter %2"_s.arg(i + 1).arg(t));
            }
        }
    }
}

void Escribir(const QString& ruta, const QString& carpeta, const QString& generales) {
    SQLite::Database base(ruta.toUtf8().constData(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    base.check(RegistrarAlfabetico(base.getHandle()));
    base.exec("BEGIN IMMEDIATE");
    base.exec("PRAGMA application_id = " + std::to_string(kAplicacionReferencia));
    base.exec("PRAGMA user_version = " + std::to_string(kVersionReferencia));
    base.exec(EsquemaDeReferencia());
    CopiarTablas(base, carpeta);
    const Generales datos = CopiarGenerales(base, generales);
    CopiarTipos(base, carpeta + u"/tipos.tsv"_s, datos);
    base.exec("COMMIT");
}

}  // namespace

void GenerarReferencia(const QString& destino, const QString& carpeta, const QString& generales) {
    const QString provisional = destino + u".nuevo"_s;
    QDir().mkpath(QFileInfo(destino).absolutePath());
    QFile::remove(provisional);
    try {
        Escribir(provisional, carpeta, generales);
    } catch (...) {
        QFile::remove(provisional);
        throw;
    }
    QFile::remove(destino);
    if (!QFile::rename(provisional, destino)) {
        throw FallaTsv(destino, 0, u"cannot be written"_s);
    }
}
