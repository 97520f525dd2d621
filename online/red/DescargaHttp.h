#pragma once

#include "online/Descargador.h"

/// What `Descargador` promises, done by libcurl.
std::optional<QByteArray> DescargarPorHttp(const QString& direccion, const LimitesDeDescarga& limites = {});
