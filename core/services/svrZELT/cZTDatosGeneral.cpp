#include "core/services/svrZELT/cZTDatosGeneral.h"

#include "core/base/Modelo.h"
#include "core/base/TextosPropios.h"
#include "core/store/Consulta.h"
#include "core/store/ConsultaLibre.h"
#include "core/store/DatosGenerales.h"

using namespace Qt::StringLiterals;

namespace svrZELT {

namespace {

constexpr qint32 kFactorEjercicio = 10;

/// The name under `codigo`, by a select of one row and one column; empty when there is none.
template <class T>
QString Nombre(const QString& mdblec, const char* sql, const T& codigo) {
    return LeerReferencia(mdblec, [&](Almacen& almacen) {
        Consulta consulta(almacen, sql, codigo);
        return consulta.Siguiente() ? consulta.Texto(0) : QString();
    });
}

/// Changes the general row where `valor` is not what stands there already.
template <class T>
void CambiarGeneral(const QString& ruta, const char* sql, const T& valor) {
    EscribirAjustes(ruta, [&](Almacen& almacen) { Consulta(almacen, sql, valor).Ejecutar(); });
}

/// Reads a column of the general row.
template <class F>
auto LeerGeneral(const QString& ruta, const char* sql, F&& columna) {
    return LeerUsuario(ruta, [&](Almacen& almacen) {
        Consulta consulta(almacen, sql);
        if (!consulta.Siguiente()) {
            throw FalloDeAlmacen(NumError::AlmacenDanado, ruta, TextoPropio(u"causa_sin_generales"));
        }
        return columna(consulta);
    });
}

}  // namespace

void cZTDatosGeneral::CargarResultado(const QString& sql, Tabla& buffer) const {
    buffer = LeerReferencia(mdblec, [&](Almacen& almacen) { return ConsultaLibre(almacen, sql); });
}

QString cZTDatosGeneral::ObtenerNombreProvincia(qint16 codigo, qint16 offset) const {
    return Nombre(mdblec,
                  offset == 0 ? "SELECT T02_PROCAS FROM T02_Provincias WHERE T02_PROID = ?"
                              : "SELECT T02_PROEUS FROM T02_Provincias WHERE T02_PROID = ?",
                  codigo);
}

QString cZTDatosGeneral::ObtenerNombreMunicipio(qint16 codigo, qint16 /*offset*/) const {
    return Nombre(mdblec, "SELECT T04_NOMMUN FROM T04_MUNICIPIOS WHERE T04_CODMUN = ?", codigo);
}

QString cZTDatosGeneral::ObtenerNombreCalle(const QString& codigo, qint16 offset) const {
    return Nombre(mdblec,
                  offset == 0 ? "SELECT T03_CAS FROM T03_SIGLASVIA WHERE T03_CODIGO = ?"
                              : "SELECT T03_EUS FROM T03_SIGLASVIA WHERE T03_CODIGO = ?",
                  codigo.trimmed());
}

void cZTDatosGeneral::CargarDatosGenerales(Registro& buffer) const {
    Registro datos;
    for (const auto* clave : {kEjercicioMinimo, kPeriodoMinimo, kEjercicioMaximo, kPeriodoMaximo}) {
        datos.emplace_back(Valor(LeerDatoGeneral(mdblec, clave)).aEntero16());
    }
    buffer = std::move(datos);
}

std::optional<Registro> cZTDatosGeneral::CargarTipImp(qint16 Ejercicio, qint16 Periodo) const {
    const qint32 trimestre = qint32{Ejercicio} * kFactorEjercicio + qint32{Periodo};
    return LeerReferencia(mdblec, [&](Almacen& almacen) -> std::optional<Registro> {
        Consulta consulta(almacen,
                          "SELECT T09_PRODUCTO, T09_TIPO FROM T09_TIPOS "
                          "WHERE T09_DESDE <= ? AND T09_HASTA >= ?",
                          trimestre, trimestre);
        if (Periodo < 1 || Periodo > kTrimestres || !consulta.Siguiente()) {
            return std::nullopt;
        }
        Registro tasas(kProductos, Valor(0.0));
        do {
            tasas.at(static_cast<std::size_t>(consulta.Entero16(0) - 1)) = consulta.Doble(1);
        } while (consulta.Siguiente());
        return tasas;
    });
}

QString cZTDatosGeneral::URLAct() const { return LeerDatoGeneral(mdblec, kURLAct); }

void cZTDatosGeneral::GuardarActOnline(qint16 ActOnline) const {
    CambiarGeneral(mdblec, "UPDATE T00_GENERAL SET T00_ACTONLINE = ?1 WHERE T00_ACTONLINE <> ?1", ActOnline);
}

qint16 cZTDatosGeneral::ObtenerActOnline() const {
    return LeerGeneral(mdblec, "SELECT T00_ACTONLINE FROM T00_GENERAL",
                       [](const Consulta& consulta) { return consulta.Entero16(0); });
}

void cZTDatosGeneral::ModificarIdioma(const QString& idioma) const {
    CambiarGeneral(mdbmod, "UPDATE T00_GENERAL SET T00_IDIOMA = ?1 WHERE T00_IDIOMA <> ?1", idioma);
}

void cZTDatosGeneral::CambiarIdioma(const QString& idioma) const { ModificarIdioma(idioma); }

QString cZTDatosGeneral::ObtenerIdioma() const {
    return LeerGeneral(mdbmod, "SELECT T00_IDIOMA FROM T00_GENERAL",
                       [](const Consulta& consulta) { return consulta.Texto(0); });
}

}  // namespace svrZELT
