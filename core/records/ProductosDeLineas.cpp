#include "core/records/ProductosDeLineas.h"

#include <algorithm>

#include "core/base/ErrorZT.h"
#include "core/base/Modelo.h"
#include "core/services/svrZELT/CamposDeAnexo.h"

namespace {

using Columna = svrZELT::CamposDeAnexo::Columna;

/// As many lines as the list of an establishment has room for.
constexpr std::size_t kLineasQueCaben = 5;

}  // namespace

ProductosDeLineas::ProductosDeLineas(const Tabla& anexos) {
    const int ultima = anexos.EsNula() ? 0 : anexos.UltimaFila();
    for (int fila = 1; fila <= ultima; ++fila) {
        const qint16 producto = anexos(Columna::kProducto, fila).aEntero16();
        if (producto > 0) {
            m_productos[anexos(Columna::kCSES, fila).aEntero32()].push_back(producto);
        }
    }
}

QString ProductosDeLineas::De(qint32 CSES) const {
    const std::vector<qint16> hallados = m_productos.value(CSES);
    if (hallados.size() > kLineasQueCaben) {
        throw ErrorZT(NumError::Subindice);
    }
    QString productos;
    for (int k = 1; k <= kProductos; ++k) {
        for (auto i = std::ranges::count(hallados, k); i > 0; --i) {
            productos += QString::number(k) + u',';
        }
    }
    productos.chop(1);
    return productos;
}
