#pragma once

#include <array>
#include <vector>

#include "core/base/Modelo.h"
#include "core/printing/ImprimirZT.h"
#include "core/printing/cZTImprimir.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTEstablecimientos.h"
#include "core/run/cZTFecha.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "core/store/Consulta.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/ImpresoraGrabadora.h"

/// Figures of a product in the store: quantities and quota in hundredths, rate in millionths.
struct FigurasGuardadas {
    double SUMEX = 0.0;
    double BASIM = 0.0;
    double TIPIM = 0.0;
    double CUOTA = 0.0;
};

/// A stored declarant with a stored declaration of the second quarter of 2007, both open, in Castellano; a
/// date of presentation; and a printer that writes down what is drawn.
class EntornoDeImpresion : public EntornoDePrueba {
  protected:
    void SetUp() override {
        EntornoDePrueba::SetUp();
        FijarImpresora(&impresora);
        oFecha().IDI(QStringLiteral("C"));
        AbrirDeclarante();
        GuardarDeclaracion();
        oImprimir().Ejercicio = 2007;
        oImprimir().Periodo = 2;
        oImprimir().FechaPresentacion = QStringLiteral("15/01/2007");
    }
    void TearDown() override {
        FijarImpresora(nullptr);
        EntornoDePrueba::TearDown();
    }

    /// An annex line with figures of its own, whatever its rate.
    void GuardarLinea(qint32 cses, qint16 producto, double SUMEX, double CUOTA) const {
        Consulta(*Usuario(),
                 "INSERT INTO T08_ANEXOS (T08_CSDC, T08_CSES, T08_PRODUCTO, T08_SUMEX, T08_BASIM, T08_TIPIM, "
                 "T08_CUOTA) VALUES (?, ?, ?, ?, 0, 0, ?)",
                 oDeclaraciones().CSDC, cses, qint32{producto}, SUMEX, CUOTA)
            .Ejecutar();
    }

    /// An establishment in province 1, ALAVA.
    static qint32 NuevoEstablecimiento(const QString& cim) {
        cZTEstablecimientos e;
        e.Modo = cZTEstablecimientos::kModoNuevo;
        e.InicializarDatos();
        e.CIM = cim;
        e.Domicilio = QStringLiteral("CARRETERA 1");
        e.Provin = 1;
        e.Munici = QStringLiteral("AGERLEKUAIN");
        e.GuardaEstablecimiento();
        return e.CSES;
    }

    /// That many annex lines, six an establishment: line n has n hundredths exempt and n * 100 of quota.
    void GuardarLineas(int lineas) const {
        qint32 cses = 0;
        for (int n = 1; n <= lineas; ++n) {
            const auto producto = static_cast<qint16>((n - 1) % kProductos + 1);
            if (producto == 1) {
                cses = NuevoEstablecimiento(CIMDeLinea(n));
            }
            GuardarLinea(cses, producto, n, 100.0 * n);
        }
    }
    static QString CIMDeLinea(int linea) {
        return QStringLiteral("20ES%1").arg((linea - 1) / 6, 3, 10, QLatin1Char('0'));
    }

    void GuardarFiguras(int producto, const FigurasGuardadas& f) const {
        Consulta(*Usuario(),
                 "UPDATE T10_LIQUIDACION SET T10_SUMEX = ?, T10_BASIM = ?, T10_TIPIM = ?, T10_CUOTA = ? "
                 "WHERE T10_CSDC = ? AND T10_PRODUCTO = ?",
                 f.SUMEX, f.BASIM, f.TIPIM, f.CUOTA, oDeclaraciones().CSDC, qint32{producto})
            .Ejecutar();
    }

    /// Makes the open declaration one of that year, in the store as well.
    void PonerEjercicio(qint16 ejercicio) const {
        Consulta(*Usuario(), "UPDATE T07_DECLARACIONES SET T07_EJERCICIO = ? WHERE T07_CSDC = ?", ejercicio,
                 oDeclaraciones().CSDC)
            .Ejecutar();
        oImprimir().Ejercicio = ejercicio;
    }

    /// In hundredths.
    void GuardarTotal(double TOTCUO) const {
        Consulta(*Usuario(), "UPDATE T07_DECLARACIONES SET T07_TOTCUO = ? WHERE T07_CSDC = ?", TOTCUO,
                 oDeclaraciones().CSDC)
            .Ejecutar();
    }

    [[nodiscard]] std::shared_ptr<Almacen> Usuario() const {
        return AbrirAlmacen(ClaseAlmacen::Usuario, Entorno().mdbmod);
    }

    /// Prints one copy and gives its pages.
    std::vector<QStringList> Imprimir(bool cZTImprimir::*ejemplar = &cZTImprimir::Administracion) {
        impresora.documentos.clear();
        oImprimir().Administracion = oImprimir().Interesado = false;
        oImprimir().Borrador = oImprimir().EntBank = false;
        oImprimir().*ejemplar = true;
        ImprimirDeclaracion();
        EXPECT_EQ(impresora.documentos.size(), 1U);
        return impresora.documentos.at(0).paginas;
    }

    ImpresoraGrabadora impresora;

  private:
    static void AbrirDeclarante() {
        cZTDeclarante& d = oDeclarante();
        d.Modo = cZTDeclarante::kModoNuevo;
        d.InicializaDatos();
        d.NIF = QStringLiteral("B48000012");
        d.Nombre = QStringLiteral("GASOLINERAS DE PRUEBA SL");
        d.Siglas = QStringLiteral("CL");
        d.Domicilio = QStringLiteral("MAYOR");
        d.Numero = 12;
        d.Piso = QStringLiteral("3");
        d.Mano = QStringLiteral("DCH");
        d.Provin = 20;
        d.CPost = 20001;
        d.Munici = QStringLiteral("ABARZELAI");
        d.Telepre = 943;
        d.TelNum = 123456;
        d.CSDE = d.GuardarDeclarante();
    }
    static void GuardarDeclaracion() {
        svrZELT::cZTDeclaraciones servidor;
        servidor.mdbmod = Entorno().mdbmod;
        oDeclaraciones().CSDC = servidor.GuardarDeclaraciones(
            {oDeclarante().CSDE, qint16{2007}, qint16{2}, 24e6, 24e6, 6e6, 1e6, 24e6, 6e6});
    }
};
