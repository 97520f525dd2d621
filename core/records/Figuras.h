#pragma once

#include <array>

#include "core/base/ErrorZT.h"
#include "core/records/Productos.h"

/// Stored units in a public one: of quantities and money (hundredths) and of rates (millionths).
inline constexpr double kCentesimas = 100.0;
inline constexpr double kMillonesimas = 1'000'000.0;

/// Figures of one product on the stored scale.
struct Figuras {
    /// Exempt quantity, taxable base and quota in hundredths; rate in millionths.
    double SUMEX = 0.0;
    double BASIM = 0.0;
    double TIPIM = 0.0;
    double CUOTA = 0.0;
};

/// Figures of the six products, counted from 1. Raises 9 for another product.
class FigurasPorProducto {
  public:
    [[nodiscard]] const Figuras& operator()(int k) const { return m_figuras.at(Lugar(k)); }
    [[nodiscard]] Figuras& operator()(int k) { return m_figuras.at(Lugar(k)); }

  private:
    static std::size_t Lugar(int k) {
        if (k < 1 || k > kProductos) {
            throw ErrorZT(NumError::Subindice);
        }
        return static_cast<std::size_t>(k) - 1;
    }

    std::array<Figuras, kProductos> m_figuras;
};
