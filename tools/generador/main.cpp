#include <QCoreApplication>
#include <QStringList>
#include <cstdio>
#include <exception>

#include "tools/generador/Generador.h"

// zt_generar_referencia STORE FOLDER GENERAL_DATA
int main(int argc, char** argv) {
    const QCoreApplication aplicacion(argc, argv);
    const QStringList argumentos = QCoreApplication::arguments();
    if (argumentos.size() != 4) {
        std::fputs("use: zt_generar_referencia store folder general-data\n", stderr);
        return 2;
    }
    try {
        GenerarReferencia(argumentos.at(1), argumentos.at(2), argumentos.at(3));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
