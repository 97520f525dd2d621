#pragma once

#include "core/records/cZTDeclarante.h"
#include "core/records/cZTEstablecimientos.h"
#include "core/services/svrZELT/cZTEstablecimientos.h"
#include "forms/establishments/frmZTEstablecimiento.h"
#include "forms/establishments/frmZTListaEstablecimientos.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/PruebaEnMarco.h"

/// Base of the tests of the establishment screens: a declarant is open, and the screens around them are empty
/// forms.
class PruebaDeEstablecimientos : public PruebaEnMarco {
  protected:
    void SetUp() override {
        PruebaEnMarco::SetUp();
        RegistrarVacio(QStringLiteral("frmZTListaDeclaraciones"));
        RegistrarVacio(QStringLiteral("frmZTDetDeclaracion"));
        cZTDeclarante& d = oDeclarante();
        d.Modo = cZTDeclarante::kModoNuevo;
        d.InicializaDatos();
        d.NIF = QStringLiteral("12345678Z");
        d.Nombre = QStringLiteral("GASOLEOS <B> & HIJOS");
        d.CSDE = d.GuardarDeclarante();
        d.Modo = cZTDeclarante::kModoExistente;
    }

    static qint32 Guardar(const QString& cim, const QString& domicilio = QStringLiteral("CARRETERA 1"),
                          qint16 provincia = 20, qint16 municipio = 2) {
        svrZELT::cZTEstablecimientos servidor;
        servidor.mdbmod = Entorno().mdbmod;
        return servidor.GuardaEstablecimiento(
            RegistroDeEstablecimiento(oDeclarante().CSDE, cim, domicilio, provincia, municipio));
    }
    static Tabla Almacenados() {
        svrZELT::cZTEstablecimientos servidor;
        servidor.mdbmod = Entorno().mdbmod;
        return servidor.ObtenerEstablecimientos(oDeclarante().CSDE);
    }

    static bool Cargado(QStringView formulario) { return Formularios::Cargado(formulario.toString()); }
    static bool ALaVista(QStringView formulario) { return Formularios::Visible(formulario.toString()); }
};
