#pragma once

#include <QStringList>

#include "core/base/CanalAsistencia.h"

/// A channel of the assistance that writes down what it is asked, in force while it lives.
class AsistenciaDePrueba : public CanalAsistencia {
  public:
    AsistenciaDePrueba() { FijarAsistencia(this); }
    ~AsistenciaDePrueba() override { FijarAsistencia(nullptr); }

    void AbrirDireccion(const QString& direccion) override { abiertas += direccion; }
    void MostrarInfo(qint16 idioma, const QString& direccion, qint32 ventana) override {
        infos += QStringLiteral("%1 %2 %3").arg(idioma).arg(direccion).arg(ventana);
    }

    QStringList abiertas;
    QStringList infos;
};
