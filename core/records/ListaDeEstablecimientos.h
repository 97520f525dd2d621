#pragma once

#include <QString>

/// Sub-item of an establishment that shows the products of its annex lines.
inline constexpr int kSubitemDeProductos = 5;

/// The list of establishments of a form (`lsvEstablecimientos`), as far as a record changes it. Items and
/// their sub-items count from 1.
class ListaDeEstablecimientos {
  public:
    ListaDeEstablecimientos() = default;
    ListaDeEstablecimientos(const ListaDeEstablecimientos&) = delete;
    ListaDeEstablecimientos& operator=(const ListaDeEstablecimientos&) = delete;
    virtual ~ListaDeEstablecimientos() = default;

    [[nodiscard]] virtual int Cuenta() const = 0;
    /// Text of item `i`: the key `CSES` of the establishment.
    [[nodiscard]] virtual QString Texto(int i) const = 0;
    virtual void PonerSubitem(int i, int k, const QString& texto) = 0;
};
