#pragma once

#include "core/base/Fraccion.h"

/// Quota of a taxable base at a rate: each taken on its public scale, rounded to its decimals, and their
/// product rounded to hundredths once. It stands among the services, the lowest layer with a rule of the tax:
/// the records show it and the server stores it.
[[nodiscard]] Centesimas CuotaDe(Centesimas base, Millonesimas tipo);
