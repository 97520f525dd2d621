#pragma once

#include <array>
#include <variant>

#include "core/base/ErrorZT.h"
#include "core/base/Fraccion.h"
#include "core/base/Modelo.h"
#include "core/base/Valor.h"
#include "core/services/svrZELT/CamposDeAnexo.h"

/// Figures of one product on the stored scale: exempt quantity, taxable base, rate and quota.
struct Figuras {
    Centesimas SUMEX{};
    Centesimas BASIM{};
    Millonesimas TIPIM{};
    Centesimas CUOTA{};
};

/// The figures in the order in which the buffers have them, `svrZELT::Figura`.
inline constexpr std::array<std::variant<Centesimas Figuras::*, Millonesimas Figuras::*>, svrZELT::kFiguras>
    kCamposDeFiguras{&Figuras::SUMEX, &Figuras::BASIM, &Figuras::TIPIM, &Figuras::CUOTA};

inline void Tomar(Centesimas& figura, const Valor& valor) { figura = Centesimas(valor.aDoble()); }
inline void Tomar(Millonesimas& figura, const Valor& valor) { figura = Millonesimas(valor.aDoble()); }

/// Figures from a buffer; `elemento` gives the element of each `svrZELT::Figura`.
template <class F>
[[nodiscard]] Figuras LeerFiguras(F&& elemento) {
    Figuras figuras;
    int figura = 0;
    for (const auto& campo : kCamposDeFiguras) {
        const Valor& valor = elemento(figura++);
        std::visit([&](auto miembro) { Tomar(figuras.*miembro, valor); }, campo);
    }
    return figuras;
}

/// Puts the figures into a buffer; `elemento` gives the element of each `svrZELT::Figura`.
template <class F>
void PonerFiguras(const Figuras& figuras, F&& elemento) {
    int figura = 0;
    for (const auto& campo : kCamposDeFiguras) {
        Valor& destino = elemento(figura++);
        std::visit([&](auto miembro) { destino = (figuras.*miembro).Guardado(); }, campo);
    }
}

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
