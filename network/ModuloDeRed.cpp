#include "network/ModuloDeRed.h"

#include "network/DescargaHttp.h"

std::optional<QByteArray> ModuloDeRed::Descargar(const QString& direccion, const LimitesDeDescarga& limites) {
    return DescargarPorHttp(direccion, limites);
}
