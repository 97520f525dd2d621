#include "core/online/ActualizacionOnlineZT.h"

#include <QFile>
#include <QScopeGuard>
#include <QStringList>

#include "core/base/ErrorZT.h"
#include "core/base/Pantalla.h"
#include "core/online/CanalActualizacion.h"
#include "core/online/FicheroIni.h"
#include "core/online/FicheroLocal.h"
#include "core/online/VersionDelPrograma.h"
#include "core/online/cZTActOnline.h"
#include "core/run/Entorno.h"
#include "core/run/Espera.h"

using namespace Qt::StringLiterals;

namespace {

/// Time for the splash to paint.
constexpr qint64 kEsperaMs = 1000;
constexpr auto kSeccion = "informacion";

/// One of the parts of a version. Raises 9 where it has fewer.
QString Parte(const QStringList& partes, qsizetype i) {
    if (i >= partes.size()) {
        throw ErrorZT(NumError::Subindice);
    }
    return partes.at(i);
}

void LeerVersionOfrecida() {
    const FicheroIni ini(RutaDeVersion());
    cZTActOnline& act = oActOnline();
    const QStringList partes = ini.Leer(kSeccion, "currentversion").split(u'.');
    act.ActVer1 = Parte(partes, 0);
    act.ActVer2 = Parte(partes, 1);
    act.ActVer3 = Parte(partes, 2);
    act.ActDownloadURL = ini.Leer(kSeccion, "downloadurl");
    act.ActDescripcion = ini.Leer(kSeccion, "descripcion");
}

/// Any difference counts, in either direction: docs/reglas.md, version-distinta.
bool HayOtraVersion() {
    const cZTActOnline& act = oActOnline();
    const auto distintas = [](const QString& a, const QString& b) { return a.trimmed() != b.trimmed(); };
    return distintas(act.ActVer1, act.ProgVer1) || distintas(act.ActVer2, act.ProgVer2) ||
           distintas(act.ActVer3, act.ProgVer3);
}

qint32 EsperarYDescargar(CanalActualizacion& canal) {
    Pantalla().PonerPuntero(Puntero::Espera);
    const auto salida = qScopeGuard([] { Pantalla().PonerPuntero(Puntero::Normal); });
    const qint64 momento = Entorno().Milisegundos() + kEsperaMs;
    EsperarHasta([momento] { return Entorno().Milisegundos() >= momento; },
                 QEventLoop::ExcludeUserInputEvents);
    return DescargarVersion(canal);
}

}  // namespace

void ComprobarActualizacion(CanalActualizacion& canal) {
    cZTActOnline& act = oActOnline();
    if (EsperarYDescargar(canal) == kDescargaFallida) {
        act.SitAct = kDescargaFallida;
        canal.MostrarSinConexion();
        return;
    }
    if (LeerVersion() == kLecturaFallida) {
        act.SitAct = kLecturaFallida;
        canal.MostrarSinConexion();
        return;
    }
    if (act.ComVer == 1 || canal.PreferenciasVisible()) {
        canal.MostrarVersionCheck();
    }
    act.SitAct = kComprobacionHecha;
}

qint32 DescargarVersion(CanalActualizacion& canal) {
    try {
        const QString ruta = RutaDeVersion();
        BorrarSiExiste(ruta);
        const bool bien = canal.DescargarEnFichero(DireccionDeVersion(), ruta) && QFile::exists(ruta);
        return bien ? kComprobacionHecha : kDescargaFallida;
    } catch (const ErrorZT&) {
        return kDescargaFallida;
    }
}

qint32 LeerVersion() {
    try {
        LeerVersionOfrecida();
        ObtenerVersion();
        if (HayOtraVersion()) {
            oActOnline().ComVer = 1;
        }
        return 0;
    } catch (const ErrorZT&) {
        return kLecturaFallida;
    }
}

QString RutaDeVersion() { return EnCarpetaPrograma(u"version.ini"_s); }

QString DireccionDeVersion() {
    const QString idioma = Entorno().OffsetIdioma == 0 ? u"c"_s : u"e"_s;
    return oActOnline().URLAct + u"?Programa=ZELTPROG&idioma="_s + idioma;
}
