#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include "core/services/svrZELT/cZTTraspaso.h"
#include "core/store/Almacen.h"

/// A temporary program folder with a fresh user's store and the reference store of the build. Connections are
/// closed at both ends of its life, and do not wait for others.
class AlmacenTemporal {
  public:
    AlmacenTemporal() {
        FijarEsperaDeAlmacen(0);
        QDir().mkpath(mdbPath());
        QFile::copy(QStringLiteral(ZELT_REFERENCIA), mdblec());
        svrZELT::cZTTraspaso traspaso;
        traspaso.mdbmod = mdbmod();
        traspaso.mdbPath = mdbPath();
        (void)traspaso.Traspaso();
    }
    ~AlmacenTemporal() { CerrarAlmacenes(); }
    AlmacenTemporal(const AlmacenTemporal&) = delete;
    AlmacenTemporal& operator=(const AlmacenTemporal&) = delete;

    /// The program folder, without a separator at its end.
    [[nodiscard]] QString Carpeta() const { return m_carpeta.path(); }
    /// The folder of the stores, with its separator, and the two stores in it.
    [[nodiscard]] QString mdbPath() const {
        return Carpeta() + QDir::separator() + QStringLiteral("Tablas") + QDir::separator();
    }
    [[nodiscard]] QString mdbmod() const { return mdbPath() + QStringLiteral("ZELTMOD.mdb"); }
    [[nodiscard]] QString mdblec() const { return mdbPath() + QStringLiteral("ZELTLEC.mdb"); }

    /// The kept connection to the user's store, for tests that look behind the contract or set a fault.
    [[nodiscard]] std::shared_ptr<Almacen> Usuario() const {
        return AbrirAlmacen(ClaseAlmacen::Usuario, mdbmod());
    }

    /// A server fed with the user's store.
    template <class Servidor>
    [[nodiscard]] Servidor Con() const {
        Servidor servidor;
        servidor.mdbmod = mdbmod();
        return servidor;
    }

  private:
    QTemporaryDir m_carpeta;
};
