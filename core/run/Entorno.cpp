#include "core/run/Entorno.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QSysInfo>
#include <cstdlib>

#include "core/base/CatalogoDeTextos.h"
#include "core/run/plataforma/MarcaConNombre.h"
#include "core/services/svrZELT/cZTTraspaso.h"
#include "generado_version.h"

namespace {

qint64 MilisegundosDelReloj() {
    static const QElapsedTimer desde = [] {
        QElapsedTimer t;
        t.start();
        return t;
    }();
    return desde.elapsed();
}

qint16 OffsetEnVigor() { return Entorno().OffsetIdioma; }

EntornoZT DeLaMaquina() {
    EntornoZT e;
    e.NombreEjecutable = QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName();
    e.CarpetaTemporal = QDir::toNativeSeparators(QDir::tempPath());
    e.NombreMaquina = QSysInfo::machineHostName();
    e.Reloj = [] { return QDateTime::currentDateTime(); };
    e.Milisegundos = MilisegundosDelReloj;
    e.LectorVersion = [] { return std::optional(VersionFichero{kVersionZELT, kVersionZELT}); };
    e.Migrar = [] { return ServidorDeUsuario<svrZELT::cZTTraspaso>().Traspaso(); };
    e.Volver = [](const ErrorZT& dano) { return ServidorDeUsuario<svrZELT::cZTTraspaso>().Volver(dano); };
    e.Atender = [](const ErrorZT& /*error*/) { return false; };
    e.ComprobarActualizacion = [] {};
    e.Terminar = [](int codigo) {
        QuitarMarcaConNombre();
        std::quick_exit(codigo);
    };
    FijarIdiomaEnVigor(OffsetEnVigor);
    return e;
}

}  // namespace

qint16 OffsetDeIdioma(const QString& codigo) { return codigo == u"E" ? kOffsetEuskera : kOffsetCastellano; }

EntornoZT& Entorno() {
    static EntornoZT entorno = DeLaMaquina();
    return entorno;
}

QString EnCarpetaPrograma(const QString& nombre) {
    return Entorno().CarpetaPrograma + QDir::separator() + nombre;
}

void ReiniciarEntorno() { Entorno() = DeLaMaquina(); }
