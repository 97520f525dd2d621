#pragma once

#include "core/records/Tasas.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTEstablecimientos.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "tests/support/EntornoDePrueba.h"

/// An open declarant, and ways to give him declarations and establishments. Accepted years 2002 to 2012.
/// `Base` is the environment that the tests stand on.
template <class Base>
class ConDeclaraciones : public Base {
  protected:
    void SetUp() override {
        Base::SetUp();
        InicializarEntorno();
        oDeclarante().Modo = cZTDeclarante::kModoNuevo;
        oDeclarante().InicializaDatos();
        oDeclarante().CSDE = oDeclarante().GuardarDeclarante();
    }

    static svrZELT::cZTDeclaraciones Servidor() {
        svrZELT::cZTDeclaraciones servidor;
        servidor.mdbmod = Entorno().mdbmod;
        return servidor;
    }

    /// Stores a declaration of the open declarant with those rates, in millionths, and gives its key.
    static qint32 NuevaDeclaracion(qint16 ejercicio, qint16 periodo,
                                   const std::array<double, 6>& tasas = {}) {
        Registro registro{oDeclarante().CSDE, ejercicio, periodo};
        registro.insert(registro.end(), tasas.begin(), tasas.end());
        return Servidor().GuardarDeclaraciones(registro);
    }

    /// Stores an establishment of the open declarant and gives its key.
    static qint32 NuevoEstablecimiento(const QString& cim) {
        cZTEstablecimientos e;
        e.Modo = cZTEstablecimientos::kModoNuevo;
        e.InicializarDatos();
        e.CIM = cim;
        e.GuardaEstablecimiento();
        return e.CSES;
    }

    static void PerderElAlmacen() {
        Entorno().mdbmod = Entorno().mdbPath + QStringLiteral("NoExiste.mdb");
        Entorno().mdblec = Entorno().mdbmod;
    }
};

using EntornoDeDeclaraciones = ConDeclaraciones<EntornoDePrueba>;

/// The rates of every quarter from 2002 to 2012, in money by unit.
inline constexpr std::array<double, 6> kTasasEnVigor{24.0, 24.0, 6.0, 1.0, 24.0, 6.0};
