// Saves the lines of a declaration over and over, all with base 100,00 and all with base 200,00 in turn,
// until it is killed. Says "listo" once the first save is on disk.
//   guardar_sin_parar STORE CSDC CSES...

#include <QCoreApplication>
#include <QStringList>
#include <cstdio>

#include "core/base/Modelo.h"
#include "core/services/svrZELT/cZTAnexos.h"

namespace {

Tabla Lineas(qint32 CSDC, const QStringList& establecimientos, double base) {
    using Columna = svrZELT::CamposDeAnexo::Columna;
    Tabla lineas(Columna::kCUOTA, static_cast<int>(establecimientos.size()) * kProductosEnUso);
    int fila = 0;
    for (const QString& CSES : establecimientos) {
        for (qint16 producto = 1; producto <= kProductosEnUso; ++producto) {
            ++fila;
            lineas(Columna::kCSDC, fila) = CSDC;
            lineas(Columna::kCSES, fila) = CSES.toInt();
            lineas(Columna::kProducto, fila) = producto;
            lineas(Columna::kSUMEX, fila) = base;
            lineas(Columna::kBASIM, fila) = base;
            lineas(Columna::kTIPIM, fila) = 24e6;
            lineas(Columna::kCUOTA, fila) = 0.0;
        }
    }
    return lineas;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication aplicacion(argc, argv);
    const QStringList argumentos = QCoreApplication::arguments();
    const qint32 CSDC = argumentos.at(2).toInt();
    const Registro tasas(kProductos, Valor(24e6));
    svrZELT::cZTAnexos servidor;
    servidor.mdbmod = argumentos.at(1);
    for (bool primera = true;; primera = !primera) {
        if (!servidor.GuardarAnexos(Lineas(CSDC, argumentos.mid(3), primera ? 10000.0 : 20000.0), tasas,
                                    CSDC)) {
            std::fprintf(stderr, "%s\n", qPrintable(servidor.Causa));
            return 1;
        }
        std::puts("listo");
        std::fflush(stdout);
    }
}
