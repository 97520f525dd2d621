#pragma once

#include <compare>

#include "core/base/Redondeo.h"

/// A figure on its stored scale: a 64-bit float that counts parts of which `partes` make one unit of the
/// public scale. Nothing is rounded but by `Redondeado`.
template <int partes, qint16 decimales>
class Fraccion {
  public:
    constexpr Fraccion() = default;
    /// From the value as stored.
    explicit constexpr Fraccion(double guardado) : m_guardado(guardado) {}

    /// From a value on the public scale, not rounded.
    [[nodiscard]] static constexpr Fraccion DePublico(double publico) { return Fraccion(publico * partes); }

    /// The value as stored.
    [[nodiscard]] constexpr double Guardado() const { return m_guardado; }
    /// On the public scale, not rounded.
    [[nodiscard]] constexpr double Publico() const { return m_guardado / partes; }
    /// On the public scale, rounded by `Redondear`: to the decimals of the unit if nothing else is said.
    [[nodiscard]] double Redondeado(qint16 cuantos = decimales) const {
        return Redondear(Publico(), cuantos);
    }

    constexpr Fraccion& operator+=(Fraccion otra) {
        m_guardado += otra.m_guardado;
        return *this;
    }
    friend constexpr Fraccion operator+(Fraccion una, Fraccion otra) { return una += otra; }
    friend constexpr bool operator==(Fraccion una, Fraccion otra) = default;
    friend constexpr auto operator<=>(Fraccion una, Fraccion otra) {
        return una.m_guardado <=> otra.m_guardado;
    }

  private:
    double m_guardado = 0.0;
};

/// Quantities and money.
using Centesimas = Fraccion<100, 2>;
/// Rates: money by unit of quantity.
using Millonesimas = Fraccion<1'000'000, 6>;
