#pragma once

#include <optional>

#include "core/base/Tabla.h"

/// Rates of the six products in millionths, element k - 1 being product k; nothing stands for Null.
using Tasas = std::optional<Registro>;

/// Rates of the reference store for a year and quarter; Null when it has none.
[[nodiscard]] Tasas LeerTasas(qint16 ejercicio, qint16 periodo);

/// Rate of product `k`, from 1. Raises 13 when the rates are Null and 9 where they have no such element.
[[nodiscard]] const Valor& Tasa(const Tasas& tasas, int k);
