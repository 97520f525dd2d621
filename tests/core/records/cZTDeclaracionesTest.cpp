#include "core/records/cZTDeclaraciones.h"

#include "core/records/Productos.h"
#include "core/records/cZTAnexos.h"
#include "core/records/cZTNuevaDec.h"
#include "core/run/Textos.h"
#include "core/services/svrZELT/cZTAnexos.h"
#include "tests/support/EntornoDeDeclaraciones.h"

using namespace Qt::StringLiterals;

namespace {

using Seis = std::array<double, 6>;

class cZTDeclaracionesTest : public EntornoDeDeclaraciones {
  protected:
    /// Stores one annex line of a declaration, on the stored scale, under an establishment of its own.
    static void GuardarLinea(qint32 csdc, qint16 producto, double SUMEX, double BASIM, double TIPIM) {
        Tabla anexos(7, 1);
        anexos(2, 1) = NuevoEstablecimiento(u"20ES123Y"_s);
        anexos(3, 1) = producto;
        anexos(4, 1) = SUMEX;
        anexos(5, 1) = BASIM;
        anexos(6, 1) = TIPIM;
        svrZELT::cZTAnexos servidor;
        servidor.mdbmod = Entorno().mdbmod;
        ASSERT_TRUE(servidor.GuardarAnexos(anexos, std::nullopt, csdc));
    }

    static void Abrir(qint32 csdc) {
        oDeclaraciones().Modo = cZTDeclaraciones::kModoExistente;
        oDeclaraciones().CSDC = csdc;
        oDeclaraciones().InicializarDatos();
    }

    static Seis Tasas() {
        Seis tasas{};
        for (int k = 1; k <= kProductos; ++k) {
            tasas.at(static_cast<std::size_t>(k) - 1) = oDeclaraciones().TIPIM(k);
        }
        return tasas;
    }
    static Seis TasasDelAnexo() {
        Seis tasas{};
        for (int k = 1; k <= kProductos; ++k) {
            tasas.at(static_cast<std::size_t>(k) - 1) = oAnexos().TIPIM(k);
        }
        return tasas;
    }
};

constexpr Seis kOtrasTasas{1'000'000, 2'500'000, 3, 4'040'000, 5, 6};

}  // namespace

TEST_F(cZTDeclaracionesTest, TheProductsHaveTheirTextsInOrder) {
    EXPECT_EQ(Texto(TextoDeProducto(1)), u"Gasolina: (1000 Litros)"_s);
    EXPECT_EQ(Texto(TextoDeProducto(2)), u"Gasoleos uso Gen. (1000 litros):"_s);
    EXPECT_EQ(Texto(TextoDeProducto(3)), u"Gasoleos uso Esp.(1000 litros):"_s);
    EXPECT_EQ(Texto(TextoDeProducto(4)), u"Fuelóleo (Toneladas Métricas):"_s);
    EXPECT_EQ(Texto(TextoDeProducto(5)), u"Queroseno uso Gen. (1000 litros):"_s);
    EXPECT_EQ(Texto(TextoDeProducto(6)), u"Queroseno uso Esp. (1000 litros):"_s);
}

TEST_F(cZTDeclaracionesTest, TheSixthProductIsGoneFrom2003On) {
    for (int k = 1; k <= 5; ++k) {
        EXPECT_TRUE(ProductoEnUso(k, 2012));
    }
    EXPECT_TRUE(ProductoEnUso(6, 2002));
    EXPECT_FALSE(ProductoEnUso(6, 2003));
}

TEST_F(cZTDeclaracionesTest, FiguresAreReadOnThePublicScale) {
    cZTDeclaraciones& d = oDeclaraciones();
    for (int k = 1; k <= kProductos; ++k) {
        d.BASIM(k, 12345);
        d.TIPIM(k, 24'040'000);
        d.CUOTA(k, 12345);
        EXPECT_EQ(d.BASIM(k), 123.45);
        EXPECT_EQ(d.TIPIM(k), 24.04);
        EXPECT_EQ(d.CUOTA(k), 123.45);
    }
}

TEST_F(cZTDeclaracionesTest, QuantitiesHaveTwoDecimalsAndRatesAndQuotasSix) {
    cZTDeclaraciones& d = oDeclaraciones();
    d.SUMEX(2, 100.4);
    d.BASIM(2, 100.6);
    d.TIPIM(2, 1'000'000.5);
    d.CUOTA(2, 100.00004);
    EXPECT_EQ(d.SUMEX(2), 1.0);
    EXPECT_EQ(d.BASIM(2), 1.01);
    EXPECT_EQ(d.TIPIM(2), 1.000001);
    EXPECT_EQ(d.CUOTA(2), 1.0);
    d.CUOTA(2, 100.5);
    EXPECT_EQ(d.CUOTA(2), 1.005);
}

TEST_F(cZTDeclaracionesTest, TheTotalShowsAFractionOfAHundredth) {
    oDeclaraciones().TOTCUO(12345);
    EXPECT_EQ(oDeclaraciones().TOTCUO(), 123.45);
    oDeclaraciones().TOTCUO(12345.678);
    EXPECT_EQ(oDeclaraciones().TOTCUO(), 12345.678 / 100);
}

TEST_F(cZTDeclaracionesTest, OnlyTheFirstExemptQuantityIsWrittenOnThePublicScale) {
    oDeclaraciones().SUMEX(1, 2);
    EXPECT_EQ(oDeclaraciones().SUMEX(1), 2.0);
    for (int k = 2; k <= kProductos; ++k) {
        oDeclaraciones().SUMEX(k, 2);
        EXPECT_EQ(oDeclaraciones().SUMEX(k), 0.02);
    }
}

TEST_F(cZTDeclaracionesTest, ThereIsNoOtherProduct) {
    EXPECT_EQ(NumeroDelError([] { (void)oDeclaraciones().SUMEX(0); }), 9);
    EXPECT_EQ(NumeroDelError([] { oDeclaraciones().CUOTA(7, 1); }), 9);
}

TEST_F(cZTDeclaracionesTest, LoadingFillsTheFiguresOfAllProducts) {
    const qint32 csdc = NuevaDeclaracion(2007, 1, kOtrasTasas);
    GuardarLinea(csdc, 4, 250, 12345, 4'040'000);
    Abrir(csdc);
    const cZTDeclaraciones& d = oDeclaraciones();
    EXPECT_EQ(d.SUMEX(4), 2.5);
    EXPECT_EQ(d.BASIM(4), 123.45);
    EXPECT_EQ(d.TIPIM(4), 4.04);
    EXPECT_EQ(d.CUOTA(4), 498.74);
    EXPECT_EQ(d.TOTCUO(), 498.74);
    EXPECT_EQ(Tasas(), (Seis{1.0, 2.5, 0.000003, 4.04, 0.000005, 0.000006}));
    for (const int k : {1, 2, 3, 5, 6}) {
        EXPECT_EQ(d.SUMEX(k), 0.0);
        EXPECT_EQ(d.BASIM(k), 0.0);
        EXPECT_EQ(d.CUOTA(k), 0.0);
    }
}

TEST_F(cZTDeclaracionesTest, LoadingGivesTheAnnexesTheRatesOfTheDeclaration) {
    Abrir(NuevaDeclaracion(2007, 1, kOtrasTasas));
    EXPECT_EQ(TasasDelAnexo(), (Seis{1.0, 2.5, 0.000003, 4.04, 0.000005, 0.000006}));
}

TEST_F(cZTDeclaracionesTest, LoadingLeavesYearAndQuarterToTheCaller) {
    oDeclaraciones().Ejercicio = 1;
    oDeclaraciones().Periodo = 2;
    Abrir(NuevaDeclaracion(2007, 3, kOtrasTasas));
    EXPECT_EQ(oDeclaraciones().Ejercicio, 1);
    EXPECT_EQ(oDeclaraciones().Periodo, 2);
    EXPECT_FALSE(oDeclaraciones().vBufferTasas.has_value());
}

TEST_F(cZTDeclaracionesTest, AFirstRateOf0TakesAllRatesInForceInTheQuarterOfTheRow) {
    oDeclaraciones().Ejercicio = 2050;
    Abrir(NuevaDeclaracion(2007, 1, {0, 2'500'000, 3, 4'040'000, 5, 6}));
    EXPECT_EQ(Tasas(), kTasasEnVigor);
    EXPECT_EQ(TasasDelAnexo(), kTasasEnVigor);
    ASSERT_TRUE(oDeclaraciones().vBufferTasas.has_value());
    EXPECT_EQ(oDeclaraciones().vBufferTasas->size(), 6U);
}

TEST_F(cZTDeclaracionesTest, AFirstRateOf0InAQuarterWithoutRatesStaysAndSoDoTheOthers) {
    Abrir(NuevaDeclaracion(2050, 1, {0, 2'500'000, 3, 4'040'000, 5, 6}));
    EXPECT_EQ(Tasas(), (Seis{0.0, 2.5, 0.000003, 4.04, 0.000005, 0.000006}));
    EXPECT_EQ(TasasDelAnexo(), Tasas());
    EXPECT_FALSE(oDeclaraciones().vBufferTasas.has_value());
}

TEST_F(cZTDeclaracionesTest, OtherRatesOf0Stay) {
    Abrir(NuevaDeclaracion(2007, 1, {1'000'000, 0, 0, 0, 0, 0}));
    EXPECT_EQ(Tasas(), (Seis{1.0, 0, 0, 0, 0, 0}));
}

TEST_F(cZTDeclaracionesTest, ANewDeclarationIsZeroAndHasTheRatesOfTheChosenQuarter) {
    cZTDeclaraciones& d = oDeclaraciones();
    for (int k = 1; k <= kProductos; ++k) {
        d.SUMEX(k, 5);
        d.BASIM(k, 5);
        d.CUOTA(k, 5);
    }
    d.TOTCUO(5);
    d.Ejercicio = 2050;
    d.Periodo = 3;
    d.CSDC = 8;
    oNuevaDec().Ejercicio = 2007;
    oNuevaDec().Periodo = 2;
    d.Modo = cZTDeclaraciones::kModoNuevo;
    d.InicializarDatos();
    for (int k = 1; k <= kProductos; ++k) {
        EXPECT_EQ(d.SUMEX(k), 0.0);
        EXPECT_EQ(d.BASIM(k), 0.0);
        EXPECT_EQ(d.CUOTA(k), 0.0);
    }
    EXPECT_EQ(d.TOTCUO(), 0.0);
    EXPECT_EQ(d.Ejercicio, 0);
    EXPECT_EQ(d.Periodo, 0);
    EXPECT_EQ(d.CSDC, 8);
    EXPECT_EQ(Tasas(), kTasasEnVigor);
    EXPECT_EQ(TasasDelAnexo(), kTasasEnVigor);
}

TEST_F(cZTDeclaracionesTest, ANewDeclarationOfAQuarterWithoutRatesHasNone) {
    oDeclaraciones().TIPIM(1, 5);
    oAnexos().TIPIM(1, 7);
    oNuevaDec().Ejercicio = 2050;
    oNuevaDec().Periodo = 2;
    oDeclaraciones().Modo = cZTDeclaraciones::kModoNuevo;
    oDeclaraciones().InicializarDatos();
    EXPECT_EQ(oDeclaraciones().TIPIM(1), 0.0);
    EXPECT_EQ(oAnexos().TIPIM(1), 7.0);
    EXPECT_FALSE(oDeclaraciones().vBufferTasas.has_value());
}

TEST_F(cZTDeclaracionesTest, AnyOtherModoChangesNothing) {
    cZTDeclaraciones& d = oDeclaraciones();
    d.CSDC = NuevaDeclaracion(2007, 1, kOtrasTasas);
    d.CUOTA(1, 12345);
    d.Ejercicio = 2006;
    d.Modo = 1;
    d.InicializarDatos();
    EXPECT_EQ(d.CUOTA(1), 123.45);
    EXPECT_EQ(d.Ejercicio, 2006);
    EXPECT_EQ(d.TIPIM(1), 0.0);
}

TEST_F(cZTDeclaracionesTest, AFailureOfTheStoreClimbsThroughTheFixedNames) {
    PerderElAlmacen();
    const auto traza = [](auto cuerpo) { return DescripcionDelError(cuerpo); };
    oDeclaraciones().Modo = cZTDeclaraciones::kModoExistente;
    EXPECT_TRUE(traza([] { oDeclaraciones().InicializarDatos(); })
                    .startsWith(u"cZTDeclaraciones.InicializarDatos\r\n"
                                "cZTDeclaraciones.CargarDeclaracion\r\n"_s));
    oDeclaraciones().Modo = cZTDeclaraciones::kModoNuevo;
    EXPECT_TRUE(traza([] { oDeclaraciones().InicializarDatos(); })
                    .startsWith(u"cZTDeclaraciones.InicializarDatos\r\n"
                                "cZTDeclaraciones.CargarTipImp\r\n"_s));
    EXPECT_TRUE(pantalla.errores.empty());
}
