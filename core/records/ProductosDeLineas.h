#pragma once

#include <QHash>
#include <QString>
#include <vector>

#include "core/base/Tabla.h"

/// The products that each establishment has annex lines for, gathered in one pass over the lines, so that a
/// list of many establishments is filled in time linear in them.
class ProductosDeLineas {
  public:
    /// `anexos` has the shape of `cZTAnexos::BufferAnexos`.
    explicit ProductosDeLineas(const Tabla& anexos);

    /// Products of an establishment, ascending, joined by commas; empty when it has no lines. Raises 9 for
    /// one with more than five lines.
    [[nodiscard]] QString De(qint32 CSES) const;

  private:
    QHash<qint32, std::vector<qint16>> m_productos;
};
