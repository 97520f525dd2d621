// Copies stores over and over until it is killed, two in turn, and says "listo" once the first is done.
//   copiar_sin_parar copia TARGET STORE STORE      backs both up under the same name
//   copiar_sin_parar restaura STORE COPY COPY      restores both in the same place

#include <QCoreApplication>
#include <QStringList>
#include <cstdio>

#include "core/base/ErrorZT.h"
#include "core/copies/CopiaDeAlmacen.h"
#include "core/copies/RestauracionDeAlmacen.h"

int main(int argc, char** argv) {
    const QCoreApplication aplicacion(argc, argv);
    const QStringList argumentos = QCoreApplication::arguments();
    const bool copia = argumentos.at(1) == u"copia";
    const QString& destino = argumentos.at(2);
    try {
        for (qsizetype vez = 0;; ++vez) {
            const QString& origen = argumentos.at(3 + vez % 2);
            if (copia) {
                CopiarAlmacen(origen, destino, std::nullopt, SinAvance);
            } else {
                RestaurarAlmacen(origen, destino, QDateTime::currentDateTime(), SinAvance);
            }
            std::puts("listo");
            std::fflush(stdout);
        }
    } catch (const ErrorZT& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
