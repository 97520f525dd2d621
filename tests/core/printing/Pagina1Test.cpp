#include "core/printing/Pagina1.h"

#include <QRegularExpression>
#include <functional>

#include "core/base/Regional.h"
#include "tests/support/EntornoDeImpresion.h"
#include "tests/support/Pagina1Esperada.h"

namespace {

constexpr FigurasGuardadas kSinFiguras{0, 0, 24e6, 0};
const QString kEtiquetaDeAdministracion = u"ADMINISTRAZIOARENTZAKO ALEA / EJEMPLAR PARA LA ADMINISTRACION"_s;

class Pagina1Test : public EntornoDeImpresion {
  protected:
    QStringList Pagina1(bool cZTImprimir::*ejemplar = &cZTImprimir::Administracion) {
        return Imprimir(ejemplar).at(0);
    }

    /// What follows the labels of the liquidation, up to the frame of the next block.
    QStringList DatosDeLiquidacion() {
        QStringList pagina = Pagina1();
        pagina.remove(0, pagina.indexOf(QRegularExpression(u"texto \"Cuota total a ingresar.*"_s)) + 1);
        return pagina.mid(0, pagina.indexOf(QRegularExpression(u"marco.*"_s)));
    }

    void ComprobarDatosDeLiquidacion(const HojaEsperada& esperada) {
        EXPECT_EQ(DatosDeLiquidacion(), esperada.marcas);
    }

    /// Whether a text is printed there, in the font of the data.
    bool HayDato(double x, double y, const QString& texto) {
        return Pagina1().contains(HojaEsperada().Datos(8).L(x, y, texto).marcas.at(0));
    }

    /// Texts in the boxes of the establishment: address and CIM.
    QStringList CasillasDelEstablecimiento(bool cZTImprimir::*ejemplar = &cZTImprimir::Administracion) {
        QStringList casillas;
        const QString altura =
            u"%1)"_s.arg(QString::number(78 - 0.35 * AltoGrabado({u"Arial"_s, 8, true}), 'f', 4));
        for (const QString& marca : Pagina1(ejemplar)) {
            if (marca.contains(altura)) {
                casillas += marca;
            }
        }
        return casillas;
    }
};

}  // namespace

TEST_F(Pagina1Test, EveryElementStandsInItsPlaceFontAndOrder) {
    GuardarFiguras(1, {123456, 20000000, 24'000'000, 480000000});
    GuardarFiguras(4, {0, 150, 1'500'000, 225});
    GuardarTotal(480000225);
    HojaEsperada h;
    EtiquetaEsperada(h, u"Courier"_s, kEtiquetaDeAdministracion);
    CabeceraEsperada(h, u"2º Trimestre"_s);
    IdentificacionEsperada(h);
    LiquidacionEsperada(h);
    ProductoEsperado(h, 0, u"1"_s, u"1.234,56"_s, u"200.000,00"_s, u"24"_s, u"4.800.000,00"_s);
    ProductoEsperado(h, 1, u"4"_s, u""_s, u"1,50"_s, u"1,5"_s, u"2,25"_s);
    TotalEsperado(h, u"4.800.002,25"_s);
    SinIngresoEsperado(h, false);
    FirmaEsperada(h);
    CartaDePagoEsperada(h, u"2º Trimestre"_s);
    ComprobarHoja(Pagina1(), h);
}

TEST_F(Pagina1Test, TheBanksCopyHasTheTotalAndNoProductTable) {
    GuardarFiguras(1, {100, 100, 24'000'000, 2400});
    GuardarTotal(2400);
    HojaEsperada h;
    EtiquetaEsperada(h, u"Courier"_s, u"BANKUARENTZAKO ALEA / EJEMPLAR PARA LA ENTIDAD BANCARIA"_s);
    CabeceraEsperada(h, u"2º Trimestre"_s);
    IdentificacionEsperada(h);
    LiquidacionEsperada(h, false);
    TotalEsperado(h, u"24,00"_s);
    SinIngresoEsperado(h, false);
    FirmaEsperada(h);
    CartaDePagoEsperada(h, u"2º Trimestre"_s);
    ComprobarHoja(Pagina1(&cZTImprimir::EntBank), h);
}

TEST_F(Pagina1Test, OnlyTheNameOfTheQuarterFollowsTheLanguageOfTheScreen) {
    GuardarFiguras(1, {123456, 20000000, 24'000'000, 480000000});
    // A province whose names differ, of the declarant and of his only establishment.
    oDeclarante().Provin = 1;
    GuardarLinea(NuevoEstablecimiento(u"20ES001A"_s), 1, 100, 0);
    const QStringList castellano = Pagina1();
    EXPECT_EQ(castellano.filter(u"ARABA/ÁLAVA"_s).size(), 2);
    oFecha().IDI(u"E"_s);
    oImprimir().FechaPresentacion = u"2007/01/15"_s;
    impresora.letra = {u"Courier"_s, 12, false};
    QStringList euskera = Pagina1();
    EXPECT_NE(euskera, castellano);
    euskera.replaceInStrings(u"2. hiruhilekoa"_s, u"2º Trimestre"_s);
    const HojaEsperada periodo = HojaEsperada().Datos(8).L(123, 40, u"2º Trimestre"_s);
    ASSERT_EQ(castellano.count(periodo.marcas.at(0)), 2);
    EXPECT_EQ(euskera, castellano);
}

TEST_F(Pagina1Test, YearAndQuarterAreStruckTwiceInTheHeadBlock) {
    const QStringList pagina = Pagina1();
    EXPECT_EQ(pagina.count(HojaEsperada().Datos(8).L(76, 40, u"2007"_s).marcas.at(0)), 2);
    EXPECT_EQ(pagina.count(HojaEsperada().Datos(8).L(123, 40, u"2º Trimestre"_s).marcas.at(0)), 2);
    EXPECT_EQ(pagina.last(), HojaEsperada().Datos(8).L(123, 40, u"2º Trimestre"_s).marcas.at(0));
}

TEST_F(Pagina1Test, YearsAreBarelyDigits) {
    PonerEjercicio(999);
    EXPECT_TRUE(HayDato(76, 40, u"999"_s));
}

TEST_F(Pagina1Test, EachBlockLeavesArialBehindAndNoBold) {
    using namespace impreso;
    const DatosDeAnexo anexo = CargarDatosDeAnexo();
    impresora.UsarMilimetros();
    const std::vector<std::function<void()>> bloques{ImprimirCabecera,
                                                     [&] { ImprimirIdentificacion(anexo); },
                                                     [] { ImprimirLiquidacion(TipoDeEjemplar::Borrador); },
                                                     [] { ImprimirLiquidacion(TipoDeEjemplar::Banco); },
                                                     ImprimirSinIngreso,
                                                     ImprimirFirma,
                                                     ImprimirCartaDePago};
    for (const std::function<void()>& bloque : bloques) {
        impresora.letra = {u"Courier"_s, 8, true};
        bloque();
        EXPECT_EQ(impresora.letra, (LetraGrabada{u"Arial"_s, 8, false}));
    }
}

TEST_F(Pagina1Test, TheWindowRepaintsThreeTimesACopy) {
    (void)Pagina1();
    EXPECT_EQ(pantalla.cesiones, 3);
}

TEST_F(Pagina1Test, ADeclarationWithoutFiguresHasNoRowsATotalOfZeroAndTheMark) {
    HojaEsperada h;
    TotalEsperado(h, u"0,00"_s);
    ComprobarDatosDeLiquidacion(h);
    HojaEsperada marca;
    SinIngresoEsperado(marca, true);
    EXPECT_TRUE(ContieneSeguidas(Pagina1(), marca));
}

TEST_F(Pagina1Test, ProductsThatFollowMoveUp) {
    GuardarFiguras(1, kSinFiguras);
    GuardarFiguras(2, {100, 200, 24'000'000, 4800});
    GuardarFiguras(5, {300, 400, 24'000'000, 9600});
    HojaEsperada h;
    ProductoEsperado(h, 0, u"2"_s, u"1,00"_s, u"2,00"_s, u"24"_s, u"48,00"_s);
    ProductoEsperado(h, 1, u"5"_s, u"3,00"_s, u"4,00"_s, u"24"_s, u"96,00"_s);
    TotalEsperado(h, u"0,00"_s);
    ComprobarDatosDeLiquidacion(h);
}

TEST_F(Pagina1Test, AllSixProductsFillTheGrid) {
    HojaEsperada h;
    for (int k = 1; k <= 6; ++k) {
        GuardarFiguras(k, {100.0 * k, 1000.0 * k, 10'000'000.0 * k, 10000.0 * k});
        const QString n = QString::number(k);
        ProductoEsperado(h, k - 1, n, n + u",00"_s, n + u"0,00"_s, n + u"0"_s, n + u"00,00"_s);
    }
    GuardarTotal(210000);
    TotalEsperado(h, u"2.100,00"_s);
    ComprobarDatosDeLiquidacion(h);
}

TEST_F(Pagina1Test, AZeroQuantityIsBlankAndAZeroQuotaIsNot) {
    GuardarFiguras(1, {0, 500, 24'000'000, 0});
    GuardarFiguras(2, {500, 0, 24'000'000, 0});
    HojaEsperada h;
    ProductoEsperado(h, 0, u"1"_s, u""_s, u"5,00"_s, u"24"_s, u"0,00"_s);
    ProductoEsperado(h, 1, u"2"_s, u"5,00"_s, u""_s, u"24"_s, u"0,00"_s);
    TotalEsperado(h, u"0,00"_s);
    ComprobarDatosDeLiquidacion(h);
}

TEST_F(Pagina1Test, NegativeFiguresHaveTheirRow) {
    GuardarFiguras(3, {-100, -123456, 6'000'000, -740736});
    GuardarTotal(-740736);
    HojaEsperada h;
    ProductoEsperado(h, 0, u"3"_s, u"-1,00"_s, u"-1.234,56"_s, u"6"_s, u"-7.407,36"_s);
    TotalEsperado(h, u"-7.407,36"_s);
    ComprobarDatosDeLiquidacion(h);
}

TEST_F(Pagina1Test, RatesHaveAsManyDecimalsAsTheyNeed) {
    GuardarFiguras(1, {100, 100, 24'040'404, 0});
    GuardarFiguras(2, {100, 100, 6'100'000, 0});
    GuardarFiguras(3, {100, 100, 0, 0});
    HojaEsperada h;
    ProductoEsperado(h, 0, u"1"_s, u"1,00"_s, u"1,00"_s, u"24,040404"_s, u"0,00"_s);
    ProductoEsperado(h, 1, u"2"_s, u"1,00"_s, u"1,00"_s, u"6,1"_s, u"0,00"_s);
    ProductoEsperado(h, 2, u"3"_s, u"1,00"_s, u"1,00"_s, u"0"_s, u"0,00"_s);
    TotalEsperado(h, u"0,00"_s);
    ComprobarDatosDeLiquidacion(h);
}

TEST_F(Pagina1Test, FiguresTakeTheSeparatorsOfTheRegionalSettings) {
    FijarRegional({u'.', u','});
    GuardarFiguras(1, {123456789, 100, 24'500'000, 2450});
    GuardarTotal(123456789);
    HojaEsperada h;
    ProductoEsperado(h, 0, u"1"_s, u"1,234,567.89"_s, u"1.00"_s, u"24.5"_s, u"24.50"_s);
    TotalEsperado(h, u"1,234,567.89"_s);
    ComprobarDatosDeLiquidacion(h);
}

TEST_F(Pagina1Test, OnlyATotalOfExactlyZeroIsMarked) {
    const HojaEsperada marca = HojaEsperada().Datos(8).L(184, 139, u"X"_s);
    for (const double total : {-1.0, 1.0, 0.25, -240000.0}) {
        GuardarTotal(total);
        EXPECT_FALSE(Pagina1().contains(marca.marcas.at(0))) << total;
    }
    GuardarTotal(0);
    EXPECT_TRUE(Pagina1().contains(marca.marcas.at(0)));
    EXPECT_TRUE(Pagina1(&cZTImprimir::EntBank).contains(marca.marcas.at(0)));
}

TEST_F(Pagina1Test, APostalCodeHasFiveDigits) {
    oDeclarante().CPost = 1500;
    EXPECT_TRUE(HayDato(141, 67, u"01500"_s));
}

TEST_F(Pagina1Test, ANumberThatIsZeroIsBlank) {
    oDeclarante().Numero = 0;
    EXPECT_TRUE(HayDato(101, 59, u""_s));
}

TEST_F(Pagina1Test, ATelephoneWithoutPrefixOrNumberLeavesTheBlankBetweenThem) {
    oDeclarante().Telepre = 0;
    EXPECT_TRUE(HayDato(161, 59, u" 123456"_s));
    oDeclarante().TelNum = 0;
    EXPECT_TRUE(HayDato(161, 59, u" "_s));
}

TEST_F(Pagina1Test, TheDeclarantIsPrintedAsHeIsOpenNotAsHeIsStored) {
    oDeclarante().Nombre = u"SIN GUARDAR"_s;
    oDeclarante().Provin = 1;
    EXPECT_TRUE(HayDato(50, 50, u"SIN GUARDAR"_s));
    EXPECT_TRUE(HayDato(101, 67, u"ARABA/ÁLAVA"_s));
}

TEST_F(Pagina1Test, TheOnlyEstablishmentStandsOnPage1) {
    GuardarLinea(NuevoEstablecimiento(u"20ES001A"_s), 1, 100, 0);
    HojaEsperada h;
    h.Datos(8)
        .L(141, 67, u"20001"_s)
        .L(22, 78, u"CARRETERA 1 AGERLEKUAIN ARABA/ÁLAVA"_s)
        .L(175, 78, u"20ES001A"_s);
    EXPECT_TRUE(ContieneSeguidas(Pagina1(), h));
}

TEST_F(Pagina1Test, TheOnlyEstablishmentCanHaveSeveralLines) {
    const qint32 cses = NuevoEstablecimiento(u"20ES001A"_s);
    for (qint16 producto = 1; producto <= 6; ++producto) {
        GuardarLinea(cses, producto, 100, 0);
    }
    EXPECT_EQ(CasillasDelEstablecimiento().size(), 2);
}

TEST_F(Pagina1Test, WithoutEstablishmentsTheirBoxesStayEmpty) {
    EXPECT_TRUE(CasillasDelEstablecimiento().isEmpty());
}

TEST_F(Pagina1Test, WithSeveralEstablishmentsTheirBoxesStayEmpty) {
    GuardarLinea(NuevoEstablecimiento(u"20ES001A"_s), 1, 100, 0);
    GuardarLinea(NuevoEstablecimiento(u"20ES002B"_s), 1, 100, 0);
    EXPECT_TRUE(CasillasDelEstablecimiento().isEmpty());
}

TEST_F(Pagina1Test, TheBanksCopyLeavesTheBoxesOfSeveralEstablishmentsEmptyToo) {
    GuardarLinea(NuevoEstablecimiento(u"20ES001A"_s), 1, 100, 0);
    EXPECT_EQ(CasillasDelEstablecimiento(&cZTImprimir::EntBank).size(), 2);
    GuardarLinea(NuevoEstablecimiento(u"20ES002B"_s), 1, 100, 0);
    EXPECT_TRUE(CasillasDelEstablecimiento(&cZTImprimir::EntBank).isEmpty());
}

TEST_F(Pagina1Test, TheDateHasTheEuskeraEndingOfItsDay) {
    oImprimir().FechaPresentacion = u"11/12/2008"_s;
    EXPECT_TRUE(HayDato(85, 153, u"2008/12/11n /// 11/12/2008"_s));
    oImprimir().FechaPresentacion = u"02/12/2008"_s;
    EXPECT_TRUE(HayDato(85, 153, u"2008/12/02an /// 02/12/2008"_s));
}

TEST_F(Pagina1Test, ADateThatIsNoneLeavesTheSeparatorOfTheLanguages) {
    oImprimir().FechaPresentacion = u""_s;
    EXPECT_TRUE(HayDato(85, 153, u" /// "_s));
    oImprimir().FechaPresentacion = u"31/02/2007"_s;
    EXPECT_TRUE(HayDato(85, 153, u" /// "_s));
}
