#include "tests/ataque/Juicio.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QJsonArray>
#include <optional>

#include "core/base/ErrorZT.h"
#include "core/copies/CopiasAutomaticas.h"
#include "core/copies/RevisionDeCopia.h"
#include "core/records/Descuadres.h"
#include "core/run/Entorno.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "core/start/Arranque.h"
#include "core/store/Almacen.h"
#include "core/store/Consulta.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/VolcadoSql.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto kDeOtros = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                          QFile::WriteOther | QFile::ExeOther;

QString Resumen(const QByteArray& datos) {
    return QString::fromLatin1(QCryptographicHash::hash(datos, QCryptographicHash::Sha256).toHex().left(16));
}

QString ResumenDeFichero(const QString& ruta) {
    return QFile::exists(ruta) ? Resumen(LeerFichero(ruta)) : QString();
}

/// Whose declarations there are, of which quarters, and what is declared in them, to the hundredth of a
/// hundredth. Rates are left out: one that makes other quotas shows in these.
QString ResumenDeFiguras(Almacen& almacen) {
    QByteArray figuras;
    for (const char* orden :
         {"SELECT printf('%d %d %d %d %.2f', T07_CSDC, T07_CSDE, T07_EJERCICIO, T07_PERIODO, T07_TOTCUO) "
          "FROM T07_DECLARACIONES ORDER BY T07_CSDC",
          "SELECT printf('%d %d %.2f %.2f %.2f', T10_CSDC, T10_PRODUCTO, T10_SUMEX, T10_BASIM, T10_CUOTA) "
          "FROM T10_LIQUIDACION ORDER BY T10_CSDC, T10_PRODUCTO",
          "SELECT printf('%d %d %d %.2f %.2f %.2f', T08_CSDC, T08_CSES, T08_PRODUCTO, T08_SUMEX, T08_BASIM, "
          "T08_CUOTA) FROM T08_ANEXOS ORDER BY T08_CSAN"}) {
        Consulta consulta(almacen, orden);
        while (consulta.Siguiente()) {
            figuras += consulta.Texto(0).toUtf8() + '\n';
        }
    }
    return Resumen(figuras);
}

class Juez {
  public:
    explicit Juez(const Escenario& escenario) : m_escenario(escenario) {}

    QJsonObject Fallar() {
        MirarPermisos();
        const EjecucionDeAtaque ejecucion(m_escenario);
        Arrancar(ejecucion);
        MirarRestos();
        MirarCopias();
        MirarDocumentos();
        m_juicio[u"exportado"_s] = ResumenDeFichero(m_escenario.Exportado());
        m_juicio[u"incompleto"_s] = ResumenDeFichero(m_escenario.Exportado() + u".incompleto"_s);
        m_juicio[u"problemas"_s] = m_problemas;
        return m_juicio;
    }

  private:
    void Problema(const QString& cual, const QString& donde) { m_problemas += cual + u": "_s + donde; }

    /// What holds data of the user is for him alone, also what a killed program has left.
    void MirarPermisos() {
        for (const QString& carpeta : {m_escenario.Usuario() + u"/Tablas"_s, m_escenario.Copias()}) {
            MirarPermisosDe(carpeta);
            QDirIterator ficheros(carpeta, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                                  QDirIterator::Subdirectories);
            while (ficheros.hasNext()) {
                const QString ruta = ficheros.next();
                if (!QFileInfo(ruta).fileName().startsWith(u"ZELTLEC.mdb"_s)) {
                    MirarPermisosDe(ruta);
                }
            }
        }
    }
    void MirarPermisosDe(const QString& ruta) {
        if (QFile::exists(ruta) && (QFile::permissions(ruta) & kDeOtros) != 0) {
            Problema(u"abierto a otros"_s, ruta);
        }
    }

    void Arrancar(const EjecucionDeAtaque& ejecucion) {
        bool sigue = false;
        try {
            sigue = ejecucion.Arrancar();
            if (sigue) {
                oRevision().Empezar(Entorno().mdbmod);
                sigue = ConVuelta(ExigirAlmacenSano);
            }
            if (sigue) {
                MirarAlmacen();
            }
        } catch (const ErrorZT& error) {
            sigue = false;
            Problema(u"fallo al arrancar"_s, error.Descripcion());
        }
        m_juicio[u"arranque"_s] = sigue;
        QJsonArray rechazos;
        for (const FalloDeCopia& rechazo : ejecucion.copias.rechazos) {
            rechazos += rechazo.fichero + u": "_s + rechazo.causa;
        }
        m_juicio[u"rechazos"_s] = rechazos;
        m_juicio[u"ofrecidas"_s] =
            static_cast<int>(CopiasAutomaticas(CarpetaDeCopiasAutomaticas(m_escenario.Almacen())).size());
        m_juicio[u"avisos"_s] = QJsonArray::fromStringList(ejecucion.pantalla.fallos);
    }

    void MirarAlmacen() {
        const QByteArray volcado =
            LeerUsuario(Entorno().mdbmod, [](Almacen& a) { return VolcadoSql(a.Base()); });
        m_juicio[u"estado"_s] = Resumen(volcado);
        m_juicio[u"figuras"_s] = LeerUsuario(Entorno().mdbmod, ResumenDeFiguras);
        m_juicio[u"descuadres"_s] = ContarDescuadres();
    }

    /// As the program does it when it opens a declaration.
    static int ContarDescuadres() {
        const auto claves = LeerUsuario(Entorno().mdbmod, [](Almacen& a) {
            std::vector<qint32> todas;
            Consulta consulta(a, "SELECT T07_CSDC FROM T07_DECLARACIONES");
            while (consulta.Siguiente()) {
                todas.push_back(consulta.Entero32(0));
            }
            return todas;
        });
        std::size_t cuantos = 0;
        for (const qint32 CSDC : claves) {
            Tabla lineas;
            const Registro declaracion =
                ServidorDeUsuario<svrZELT::cZTDeclaraciones>().CargarDeclaracion(CSDC, &lineas);
            cuantos += DescuadresDe(declaracion, lineas).size();
        }
        return static_cast<int>(cuantos);
    }

    void MirarRestos() {
        const QString tablas = m_escenario.Usuario() + u"/Tablas"_s;
        const QString automaticas = CarpetaDeCopiasAutomaticas(m_escenario.Almacen());
        for (const QString& carpeta : {m_escenario.Usuario(), tablas, m_escenario.Copias(), automaticas}) {
            const QDir lugar(carpeta);
            for (const QString& resto : lugar.entryList({u"*.parcial"_s, u"*-journal"_s}, QDir::Files)) {
                // A journal that has not begun undoes nothing; the next write takes it over.
                const QByteArray contenido = LeerFichero(lugar.filePath(resto));
                if (!resto.endsWith(u"-journal"_s) || (!contenido.isEmpty() && contenido.at(0) != '\0')) {
                    Problema(u"resto tras el arranque"_s, lugar.filePath(resto));
                }
            }
        }
        m_juicio[u"apartados"_s] =
            static_cast<int>(QDir(tablas).entryList({u"ZELTMOD.mdb.*.rechazado"_s}, QDir::Files).size());
    }

    void MirarCopias() {
        QJsonObject copias;
        QDirIterator ficheros(m_escenario.Copias(), {u"*.mdb"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (ficheros.hasNext()) {
            const QString ruta = ficheros.next();
            copias[QFileInfo(ruta).fileName()] = EstadoDeCopia(ruta);
        }
        m_juicio[u"copias"_s] = copias;
    }
    [[nodiscard]] static QString EstadoDeCopia(const QString& ruta) {
        try {
            (void)RevisarCopia(ruta);
            return Resumen(
                ConAlmacen(ClaseAlmacen::Copia, ruta, [](Almacen& a) { return VolcadoSql(a.Base()); }));
        } catch (const ErrorZT&) {
            return {};
        }
    }

    void MirarDocumentos() {
        int enteros = 0;
        const QDir documentos(m_escenario.Casa() + u"/Documents"_s);
        for (const QString& nombre : documentos.entryList({u"*.pdf"_s}, QDir::Files)) {
            const QByteArray pdf = LeerFichero(documentos.filePath(nombre));
            if (pdf.startsWith("%PDF-") && pdf.trimmed().endsWith("%%EOF")) {
                ++enteros;
            } else {
                Problema(u"PDF a medias"_s, nombre);
            }
        }
        m_juicio[u"documentos"_s] = enteros;
    }

    const Escenario& m_escenario;
    QJsonObject m_juicio;
    QJsonArray m_problemas;
};

}  // namespace

QJsonObject Juzgar(const Escenario& escenario) { return Juez(escenario).Fallar(); }
