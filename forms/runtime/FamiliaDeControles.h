#pragma once

#include <QString>
#include <QWidget>
#include <array>

#include "core/base/Modelo.h"

/// The control of that name; the form has to have it.
template <class Control>
Control& ElControl(const QWidget& formulario, const QString& nombre) {
    auto* control = formulario.findChild<Control*>(nombre);
    Q_ASSERT(control != nullptr);
    return *control;
}

/// The controls of a form that stand for the same figure of each product: "lblCuota1" to "lblCuota6" are the
/// family "lblCuota", counted from 1. The form has to have them all.
template <class Control>
class FamiliaDeControles {
  public:
    FamiliaDeControles(const QWidget& formulario, QStringView nombre) {
        for (int k = 1; k <= kProductos; ++k) {
            m_controles[static_cast<std::size_t>(k) - 1] =
                &ElControl<Control>(formulario, nombre.toString() + QString::number(k));
        }
    }

    [[nodiscard]] Control& operator()(int k) const {
        return *m_controles.at(static_cast<std::size_t>(k) - 1);
    }

  private:
    std::array<Control*, kProductos> m_controles;
};
