#include "tests/ataque/Escenario.h"

#include "core/base/Instancias.h"
#include "core/base/Modelo.h"
#include "core/base/Regional.h"
#include "core/copies/CopiaDeAlmacen.h"
#include "core/exchange/RegistroDeIntercambio.h"
#include "core/run/Entorno.h"
#include "core/services/svrZELT/cZTAnexos.h"
#include "core/start/Arranque.h"
#include "core/start/Instalacion.h"
#include "core/store/Almacenes.h"
#include "tests/ataque/Acciones.h"
#include "tests/support/DatosDeIntercambio.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/FicherosDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double kBase = 10000.0;
constexpr int kImportados = 4;

/// Declaration 1 has lines of all products at two establishments, and declaration 2 at one.
Tabla Lineas(const std::vector<qint32>& establecimientos, double base) {
    using Columna = svrZELT::CamposDeAnexo::Columna;
    Tabla lineas(Columna::kCUOTA, static_cast<int>(establecimientos.size()) * kProductosEnUso);
    int fila = 0;
    for (const qint32 CSES : establecimientos) {
        for (qint16 producto = 1; producto <= kProductosEnUso; ++producto) {
            ++fila;
            lineas(Columna::kCSES, fila) = CSES;
            lineas(Columna::kProducto, fila) = producto;
            lineas(Columna::kSUMEX, fila) = base * producto;
            lineas(Columna::kBASIM, fila) = base + fila;
            lineas(Columna::kTIPIM, fila) = 24e6;
        }
    }
    return lineas;
}

template <class Servidor>
Servidor Con() {
    return ServidorDeUsuario<Servidor>();
}

void GuardarDeclaracionCon(qint16 ejercicio, qint16 periodo, const std::vector<qint32>& establecimientos) {
    const qint32 CSDC = Con<svrZELT::cZTDeclaraciones>().GuardarDeclaraciones(
        {qint32{1}, ejercicio, periodo, 24e6, 24e6, 6e6, 1e6, 24e6, 6e6});
    auto servidor = Con<svrZELT::cZTAnexos>();
    if (!servidor.GuardarAnexos(Lineas(establecimientos, kBase * periodo), std::nullopt, CSDC)) {
        qFatal("%s", qUtf8Printable(servidor.Causa));
    }
}

void LlenarAlmacen() {
    for (int i = 1; i <= 3; ++i) {
        (void)Con<svrZELT::cZTDeclarante>().GuardarDeclarante(
            RegistroDeDeclarante(NifDePersona(i), u"DECLARANTE %1"_s.arg(i)));
    }
    for (int i = 0; i < 4; ++i) {
        (void)Con<svrZELT::cZTEstablecimientos>().GuardaEstablecimiento(
            RegistroDeEstablecimiento(i < 3 ? 1 : 2, u"20ES00%1X"_s.arg(i)));
    }
    GuardarDeclaracionCon(2006, 4, {1});
    GuardarDeclaracionCon(2007, 1, {1, 2});
    GuardarDeclaracionCon(2007, 2, {1, 2});
}

/// New declarants, those that replace one, and one that is refused.
QByteArray FicheroImportado() {
    QByteArray fichero;
    for (int linea = 1; linea <= kImportados; ++linea) {
        const QString nif =
            linea == 3 ? u"99999999X"_s : NifDePersona(linea % 2 == 0 ? linea / 2 : 10 + linea);
        fichero +=
            LineaDeDeclarante(DeclaranteDePrueba(nif, u"IMPORTADO %1"_s.arg(linea))).toLatin1() + "\r\n";
    }
    return fichero;
}

void PonerInstalacion(const Escenario& e) {
    QDir().mkpath(e.Origen() + u"/Tablas"_s);
    QDir().mkpath(e.Origen() + u"/Ayuda"_s);
    QDir().mkpath(e.Ejecutable());
    QDir().mkpath(e.Casa());
    QFile::copy(QStringLiteral(ZELT_REFERENCIA), e.Origen() + u"/Tablas/ZELTLEC.mdb"_s);
    for (const auto* nombre : {"cap.htm", "kap.htm", "sha256.txt"}) {
        EscribirFichero(e.Origen() + u"/Ayuda/"_s + QString::fromLatin1(nombre), QByteArray(nombre) + '\n');
    }
}

}  // namespace

EjecucionDeAtaque::EjecucionDeAtaque(const Escenario& escenario, QDate dia) : m_escenario(escenario) {
    ReiniciarInstancias();
    ReiniciarEntorno();
    FijarRegional({});
    qputenv("HOME", QFile::encodeName(escenario.Casa()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(escenario.Casa()));
    qputenv("CUPS_SERVER", QFile::encodeName(escenario.Casa() + u"/sin_cola"_s));
    copias.ahora = QDateTime(dia, QTime(9, 8, 7));
    Entorno().Reloj = [dia] { return QDateTime(dia, QTime(9, 8, 7)); };
    Entorno().CarpetaPrograma = escenario.Usuario();
    Entorno().CarpetaDeUsuario = true;
    Entorno().CarpetaTemporal = escenario.raiz;
    Entorno().Terminar = [](int /*codigo*/) {};
    InicializarTodo();
}

EjecucionDeAtaque::~EjecucionDeAtaque() {
    CerrarAlmacenes();
    ReiniciarInstancias();
}

bool EjecucionDeAtaque::Arrancar() const {
    PrepararCarpetaPrograma(m_escenario.Ejecutable(), m_escenario.Usuario(), m_escenario.Origen());
    InicializarTodo();
    return !Traspaso() && ConVuelta(InicializarEntorno);
}

void PrepararEscenario(const Escenario& escenario) {
    PonerInstalacion(escenario);
    const EjecucionDeAtaque ejecucion(escenario, QDate(2007, 7, 2));
    if (!ejecucion.Arrancar()) {
        qFatal("the folder cannot be prepared");
    }
    LlenarAlmacen();
    // The state of the backup and of the old export.
    CopiarAlmacen(escenario.Almacen(), escenario.Copia(), std::nullopt, [](int) {});
    Exportar(escenario, {qint32{1}, qint32{2}});
    (void)Con<svrZELT::cZTDeclarante>().GuardarDeclarante(
        RegistroDeDeclarante(NifDePersona(4), u"DECLARANTE 4"_s));
    GuardarDeclaracionCon(2007, 3, {1, 2, 3});
    EscribirFichero(escenario.Importado(), FicheroImportado());
}
