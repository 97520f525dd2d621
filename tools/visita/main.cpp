#include <QDir>
#include <QTemporaryDir>
#include <cstdio>

#include "data/Almacenes.h"
#include "shell/Entorno.h"
#include "shell/Instalacion.h"
#include "shell/ZTAplicacion.h"
#include "tools/visita/Visita.h"

using namespace Qt::StringLiterals;

/// Usage: zt_visita [folder for the pictures]
int main(int argc, char** argv) {
    const ZTAplicacion aplicacion(argc, argv);
    const QString salida = QCoreApplication::arguments().value(1, u"out"_s);
    Visita visita(salida);
    const QString origen = QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../share/zelt"_s);
    for (const QString& idioma : {u"C"_s, u"E"_s}) {
        const QTemporaryDir casa;
        ReiniciarEntorno();
        PrepararCarpetaPrograma(casa.filePath(u"bin"_s), casa.filePath(u"ZELT"_s), origen);
        Entorno().CarpetaTemporal = QDir::toNativeSeparators(casa.path());
        visita.Recorrer(idioma);
        CerrarAlmacenes();
    }
    std::printf("%lld pictures:\n", static_cast<long long>(visita.Imagenes().size()));
    for (const QString& imagen : visita.Imagenes()) {
        std::printf("  %s\n", qPrintable(QDir::toNativeSeparators(imagen)));
    }
    return 0;
}
