#include "forms/online/DescargaPorModulo.h"

#include <QCoreApplication>
#include <QDir>
#include <QPluginLoader>

using namespace Qt::StringLiterals;

QString RutaDelModuloDeRed() {
    return QDir::cleanPath(QCoreApplication::applicationDirPath() + u"/../lib/zelt/zt_red"_s);
}

std::optional<QByteArray> DescargarPorModulo(const QString& direccion, const LimitesDeDescarga& limites,
                                             const QString& modulo) {
    auto* descargador = qobject_cast<Descargador*>(QPluginLoader(modulo).instance());
    return descargador == nullptr ? std::nullopt : descargador->DescargarDireccion(direccion, limites);
}
