#include "shell/Entorno.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QSysInfo>
#include <cstdlib>

#include "generado_version.h"
#include "shell/plataforma/MarcaConNombre.h"

namespace {

qint64 MilisegundosDelReloj() {
    static const QElapsedTimer desde = [] {
        QElapsedTimer t;
        t.start();
        return t;
    }();
    return desde.elapsed();
}

EntornoZT DeLaMaquina() {
    EntornoZT e;
    e.NombreEjecutable = QFileInfo(QCoreApplication::applicationFilePath()).completeBaseName();
    e.CarpetaTemporal = QDir::toNativeSeparators(QDir::tempPath());
    e.NombreMaquina = QSysInfo::machineHostName();
    e.Reloj = [] { return QDateTime::currentDateTime(); };
    e.Milisegundos = MilisegundosDelReloj;
    e.LectorVersion = [] { return std::optional(VersionFichero{kVersionZELT, kVersionZELT}); };
    e.Terminar = [](int codigo) {
        QuitarMarcaConNombre();
        std::quick_exit(codigo);
    };
    return e;
}

}  // namespace

EntornoZT& Entorno() {
    static EntornoZT entorno = DeLaMaquina();
    return entorno;
}

void ReiniciarEntorno() { Entorno() = DeLaMaquina(); }
