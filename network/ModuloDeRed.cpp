#include "network/ModuloDeRed.h"

#include "network/DescargaHttp.h"

std::optional<QByteArray> ModuloDeRed::DescargarDireccion(const QString& direccion,
                                                          const LimitesDeDescarga& limites) {
    return DescargarPorHttp(direccion, limites);
}
