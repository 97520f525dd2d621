#include "core/exchange/ImportacionZT.h"

#include <QFileInfo>
#include <array>
#include <limits>
#include <utility>

#include "core/base/ErrorZT.h"
#include "core/base/FalloDeFichero.h"
#include "core/base/FicherosAbiertos.h"
#include "core/base/Pantalla.h"
#include "core/base/Windows1252.h"
#include "core/base/plataforma/SistemaFicheros.h"
#include "core/exchange/EscritorDeLineas.h"
#include "core/exchange/LectorDeLineas.h"
#include "core/exchange/PantallasDeIntercambio.h"
#include "core/exchange/RegistroDeIntercambio.h"
#include "core/exchange/TextoEnUtf8.h"
#include "core/exchange/ValidacionDeRegistro.h"
#include "core/exchange/cZTImportaciones.h"
#include "core/records/cZTDeclarante.h"
#include "core/run/Entorno.h"
#include "core/run/GeneralZT.h"
#include "core/run/ProcedimientoInformado.h"
#include "core/run/Textos.h"

using namespace Qt::StringLiterals;

namespace {

/// The counters of a run. Nothing raises those of `Ociosas`.
struct Cuentas {
    qint16 Importados = 0;
    qint16 Ignorados = 0;
    qint16 Incorrectos = 0;
    qint16 Sustituidos = 0;
    std::array<qint16, 3> Ociosas{};
    /// Lines of the file.
    qint16 TotalLineas = 0;
};

void Subir(qint16& cuenta) {
    if (cuenta == std::numeric_limits<qint16>::max()) {
        throw ErrorZT(NumError::Desbordamiento);
    }
    ++cuenta;
}

/// The file of the run, open for reading, and its lines.
class FicheroDeLineas {
  public:
    explicit FicheroDeLineas(const QString& ruta)
        : m_fichero(ruta, QIODevice::ReadOnly),
          m_lector(m_fichero.Fichero(), qsizetype{kLargoDeRegistro + 1} * kBytesPorCaracter) {}

    /// The next line, not cut yet into fields; nothing after the last one.
    std::optional<QString> Siguiente(bool enUtf8) {
        const std::optional<QByteArrayView> bytes = m_lector.Siguiente();
        if (!bytes) {
            return {};
        }
        const bool primera = std::exchange(m_primera, false);
        return enUtf8 ? DeUtf8(*bytes, primera) : DeWindows1252(*bytes);
    }

  private:
    FicheroZT m_fichero;
    LectorDeLineas m_lector;
    bool m_primera = true;
};

/// The user's store as it was at the start of the run. Where another program puts a copy in its place, the
/// lines before went into the file that is gone.
class AlmacenDelComienzo {
  public:
    void ExigirElMismo() const {
        if (!ExaminarFichero(Entorno().mdbmod).MismoFichero(m_estado)) {
            throw FalloDeFichero(NumError::AlmacenOcupado, Entorno().mdbmod,
                                 TextoPropio(u"intercambio_almacen_sustituido"));
        }
    }

  private:
    EstadoFichero m_estado = ExaminarFichero(Entorno().mdbmod);
};

/// A device or a pipe may never come to its end, or not even open. A folder fails by itself.
void ExigirCorriente(const QString& ruta) {
    const QFileInfo fichero(ruta);
    if (fichero.exists() && !fichero.isFile() && !fichero.isDir()) {
        throw FalloDeFichero(NumError::ErrorAccesoRuta, ruta, TextoPropio(u"intercambio_no_corriente"));
    }
}

/// The file of faults, which the run empties, is not the one that it reads.
void ExigirDistintoDelDeErrores(const QString& ruta) {
    if (QFileInfo(ruta).canonicalFilePath() == QFileInfo(RutaDeErrores()).canonicalFilePath()) {
        throw FalloDeFichero(NumError::PermisoDenegado, ruta, TextoPropio(u"intercambio_es_el_de_errores"));
    }
}

qint16 ContarLineas(const QString& ruta) {
    FicheroDeLineas fichero(ruta);
    qint16 lineas = 0;
    while (fichero.Siguiente(false)) {
        if (lineas == std::numeric_limits<qint16>::max()) {
            throw FalloDeFichero(NumError::Desbordamiento, ruta,
                                 TextoPropio(u"intercambio_demasiadas_lineas").arg(lineas));
        }
        ++lineas;
    }
    return lineas;
}

Registro ResultadosDe(const Cuentas& c) {
    Registro resultados{c.Importados, c.Incorrectos, c.Sustituidos, c.Ignorados,
                        qint32{c.Importados} + c.Incorrectos + c.Sustituidos + c.Ignorados};
    qint32 suma = 0;
    for (const qint16 ociosa : c.Ociosas) {
        resultados.emplace_back(ociosa);
        suma += ociosa;
    }
    resultados.emplace_back(suma);
    return resultados;
}

bool SustituyeAlQueHay(const QString& nif, const PantallaDeImportacion& pantalla) {
    return pantalla.Automatico() ||
           Mensaje(Texto(Id::PreguntaReemplazarAntes) + nif + Texto(Id::PreguntaReemplazarDespues),
                   Texto(Id::ImportacionDeDeclarantes), false) == kRespuestaAceptar;
}

/// Stores a good record, as a new declarant or in the place of the one with the key `CSDE`.
void Guardar(Tabla registro, qint32 CSDE, const PantallaDeImportacion& pantalla, Cuentas& cuentas) {
    if (CSDE < 1) {
        Subir(cuentas.Importados);
    } else if (SustituyeAlQueHay(registro(kColumnaValor, kFilaNif).aTexto(), pantalla)) {
        Subir(cuentas.Sustituidos);
    } else {
        Subir(cuentas.Ignorados);
        return;
    }
    oImportaciones().vBufferImportados = std::move(registro);
    oImportaciones().ImportarDeclarante(CSDE < 1 ? 0 : CSDE);
}

void ImportarLinea(const QString& texto, int linea, EscritorDeLineas& errores,
                   const PantallaDeImportacion& pantalla, Cuentas& cuentas) {
    Tabla registro = TrocearRegistro(texto);
    const QString nif = registro(kColumnaValor, kFilaNif).aTexto();
    const qint32 CSDE = cZTDeclarante::NifRepetido(nif);
    const Registro faltas = Validar(registro, kLimiteDeLargo);
    if (faltas.size() == 1) {
        Guardar(std::move(registro), CSDE, pantalla, cuentas);
        return;
    }
    Subir(cuentas.Incorrectos);
    GrabarErrores(faltas, linea, errores, nif);
}

/// The loop over the lines. False when a failure ended it, which has been shown.
bool ImportarDeclarantes(FicheroDeLineas& lineas, EscritorDeLineas& errores, PantallaDeImportacion& pantalla,
                         Cuentas& cuentas) {
    return ProcedimientoInformado(u"ImportacionZT"_s, u"Importacion.ImportarDeclarantes"_s, [&] {
        const AlmacenDelComienzo almacen;
        int linea = 0;
        while (const std::optional<QString> texto = lineas.Siguiente(pantalla.EnUtf8())) {
            ++linea;
            ConDetalle([linea] { return TextoPropio(u"intercambio_linea").arg(linea); },
                       [&] {
                           almacen.ExigirElMismo();
                           ImportarLinea(*texto, linea, errores, pantalla, cuentas);
                           almacen.ExigirElMismo();
                       });
            pantalla.Avanzar(linea, cuentas.TotalLineas);
        }
        oDeclarante().Modificado = false;
        return true;
    });
}

}  // namespace

QString RutaDeErrores() { return EnCarpetaPrograma(u"Errores.log"_s); }

void Import(const QString& fichero, PantallaDeImportacion& pantalla) {
    ProcedimientoInformado(u"ImportacionZT"_s, u"Importacion.Import"_s, [&] {
        oImportaciones().vBufferImportados = std::monostate();
        ExigirCorriente(fichero);
        Cuentas cuentas;
        cuentas.TotalLineas = ContarLineas(fichero);
        FicheroDeLineas lineas(fichero);
        ExigirDistintoDelDeErrores(fichero);
        EscritorDeLineas errores(RutaDeErrores());
        if (cuentas.TotalLineas != 0) {
            pantalla.MostrarBarra();
        }
        if (ImportarDeclarantes(lineas, errores, pantalla, cuentas)) {
            errores.Cerrar();
            oImportaciones().vBufferImportados = ResultadosDe(cuentas);
        }
    });
}

void GrabarErrores(const Registro& errores, int linea, EscritorDeLineas& fichero, const QString& nif) {
    const QString prefijo = IDI(u"Linea %1 - NIF "_s, u"Lerroa %1 - IFK "_s).arg(linea) + nif + u": "_s;
    QString mensaje;
    for (int i = 1; i < static_cast<int>(errores.size()); ++i) {
        mensaje = MensajeDeFalta(Elemento(errores, i).aEntero16()).value_or(mensaje);
        fichero.Escribir(prefijo + mensaje);
    }
}
