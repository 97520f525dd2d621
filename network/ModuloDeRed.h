#pragma once

#include <QObject>

#include "core/online/Descargador.h"

/// The object that the program finds in the network's module.
class ModuloDeRed : public QObject, public Descargador {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "zelt.Descargador/1")
    Q_INTERFACES(Descargador)
  public:
    std::optional<QByteArray> DescargarDireccion(const QString& direccion,
                                                 const LimitesDeDescarga& limites) override;
};
