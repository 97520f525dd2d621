#pragma once

#include "core/online/Descargador.h"

/// What `Descargador` promises, done by libcurl.
std::optional<QByteArray> DescargarPorHttp(const QString& direccion, const LimitesDeDescarga& limites = {});
