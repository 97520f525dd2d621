#include "online/red/ModuloDeRed.h"

#include "online/red/DescargaHttp.h"

std::optional<QByteArray> ModuloDeRed::Descargar(const QString& direccion, const LimitesDeDescarga& limites) {
    return DescargarPorHttp(direccion, limites);
}
