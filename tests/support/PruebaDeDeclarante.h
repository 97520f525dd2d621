#pragma once

#include "core/records/cZTDeclarante.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "forms/declarants/frmZTDeclarante.h"
#include "tests/support/PruebaEnMarco.h"

/// Base of the tests of the declarant form: opens it the two ways in which the program does.
class PruebaDeDeclarante : public PruebaEnMarco {
  protected:
    void SetUp() override {
        PruebaEnMarco::SetUp();
        RegistrarVacio(QStringLiteral("frmZTListaDeclaraciones"));
    }

    /// Opens the form as the command for a new declarant does.
    void AbrirNuevo() {
        oDeclarante().Modo = cZTDeclarante::kModoNuevo;
        oDeclarante().InicializaDatos();
        oDeclarante().Procedencia = cZTDeclarante::kDesdeMenu;
        Abrir(frmZTDeclarante::kNombre);
    }
    /// Opens the form on a stored declarant as the list of declarations does.
    void AbrirExistente(qint32 csde) {
        oDeclarante().CSDE = csde;
        oDeclarante().Modo = cZTDeclarante::kModoExistente;
        oDeclarante().InicializaDatos();
        oDeclarante().Procedencia = cZTDeclarante::kDesdeListaDeclaraciones;
        Abrir(frmZTDeclarante::kNombre);
    }

    /// A declarant that passes every rule, in the store.
    static qint32 Guardar(qint16 provincia = 20, qint16 municipio = 1) {
        cZTDeclarante d;
        d.Modo = cZTDeclarante::kModoNuevo;
        d.NIF = QStringLiteral("12345678Z");
        d.Nombre = QStringLiteral("GASOLINERA UNO");
        d.Siglas = QStringLiteral("CL");
        d.Domicilio = QStringLiteral("MAYOR");
        d.Numero = 12;
        d.Letra = QStringLiteral("A");
        d.Escal = QStringLiteral("IZ");
        d.Piso = QStringLiteral("3");
        d.Mano = QStringLiteral("DCH");
        d.Provin = provincia;
        d.CPost = provincia * 1000 + 1;
        d.CMuni = municipio;
        d.Munici = QStringLiteral("ABARZELAI");
        d.Telepre = 943;
        d.TelNum = 123456;
        return d.GuardarDeclarante();
    }

    void EscribirUnoBueno() const {
        Escribir(QStringLiteral("txtNIF"), QStringLiteral("12345678z"));
        Escribir(QStringLiteral("txtNombre"), QStringLiteral("gasolinera ñu & cía"));
        Escribir(QStringLiteral("txtViaPub"), QStringLiteral("mayor"));
        Escribir(QStringLiteral("txtCPost"), QStringLiteral("20001"));
        Escribir(QStringLiteral("txtMuni"), QStringLiteral("1"));
        Tecla(Qt::Key_Tab);
    }

    [[nodiscard]] bool Abierto() const { return Formularios::Cargado(frmZTDeclarante::kNombre.toString()); }

    /// Columns of the stored declarants, by the service itself.
    static Tabla Almacenados() {
        svrZELT::cZTDeclarante servidor;
        servidor.mdbmod = Entorno().mdbmod;
        return servidor.ObtenerDeclarantes();
    }
    /// The stored record of a declarant.
    static Registro Almacenado(qint32 csde) {
        Registro r;
        svrZELT::cZTDeclarante servidor;
        servidor.mdbmod = Entorno().mdbmod;
        servidor.CargarDeclarante(csde, r);
        return r;
    }
    static QString NombreAlmacenado(qint32 csde) { return Elemento(Almacenado(csde), 2).aTexto(); }
    static qint16 ProvinciaAlmacenada(qint32 csde) { return Elemento(Almacenado(csde), 10).aEntero16(); }

    [[nodiscard]] QRgb Fondo(const QString& caja) const {
        return Caja(caja).palette().color(QPalette::Disabled, QPalette::Base).rgba();
    }
};
