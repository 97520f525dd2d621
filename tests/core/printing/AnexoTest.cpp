#include "core/printing/Anexo.h"

#include <QRegularExpression>
#include <functional>

#include "core/printing/DatosDeAnexo.h"
#include "tests/support/AnexoEsperado.h"
#include "tests/support/EntornoDeImpresion.h"

namespace {

const QString kEtiquetaDeAdministracion = u"ADMINISTRAZIOARENTZAKO ALEA / EJEMPLAR PARA LA ADMINISTRACION"_s;

class AnexoTest : public EntornoDeImpresion {
  protected:
    /// The annex pages of a declaration with that many lines.
    std::vector<QStringList> Anexo(int lineas) {
        GuardarLineas(lineas);
        return Anexo();
    }
    std::vector<QStringList> Anexo(bool cZTImprimir::*ejemplar = &cZTImprimir::Administracion) {
        std::vector<QStringList> paginas = Imprimir(ejemplar);
        paginas.erase(paginas.begin());
        return paginas;
    }

    /// The numbers of the lines that a page has, told by their quota, and the total of the page last.
    static QStringList Cuotas(const QStringList& pagina) {
        QStringList cuotas;
        static const QRegularExpression importe(uR"(^texto "([\d.]+),00" .* Arial 7 negrita$)"_s);
        for (const QString& marca : pagina) {
            const auto encontrado = importe.match(marca);
            if (encontrado.hasMatch()) {
                cuotas += encontrado.captured(1);
            }
        }
        return cuotas;
    }
    static QStringList CuotasEsperadas(int primera, int ultima, const QString& total) {
        QStringList cuotas;
        for (int n = primera; n <= ultima; ++n) {
            cuotas += QString::number(n);
        }
        return cuotas << total;
    }

    static bool Numerada(const QStringList& pagina, const QString& numero, const QString& total) {
        HojaEsperada h;
        h.Datos(8).L(183, 35, numero).L(188, 35, total).L(181.5, 38, numero).L(188, 38, total);
        return ContieneSeguidas(pagina, h);
    }

    /// The page with its rows, which `filas` adds.
    template <class F>
    static HojaEsperada Hoja(const QString& pagina, const QString& total, F&& filas) {
        HojaEsperada h;
        EtiquetaDeAnexoEsperada(h, kEtiquetaDeAdministracion);
        CabeceraDeAnexoEsperada(h, pagina, total);
        IdentificacionDeAnexoEsperada(h);
        DesgloseEsperado(h);
        filas(h);
        FirmaDeAnexoEsperada(h);
        return h;
    }
};

struct Paginacion {
    int lineas;
    int paginas;
    int mostradas;
};

}  // namespace

TEST_F(AnexoTest, EveryElementStandsInItsPlaceFontAndOrder) {
    const qint32 uno = NuevoEstablecimiento(u"20ES001A"_s);
    GuardarLinea(uno, 1, 123456, 7891011);
    GuardarLinea(uno, 6, 0, 100);
    GuardarLinea(NuevoEstablecimiento(u"20ES002B"_s), 2, 50, 0);
    const std::vector<QStringList> paginas = Anexo();
    ASSERT_EQ(paginas.size(), 1U);
    ComprobarHoja(paginas.at(0), Hoja(u"1"_s, u"1"_s, [](HojaEsperada& h) {
                      LineaEsperada(h, 0, u"20ES001A"_s, u"1"_s, u"1.234,56"_s, u"78.910,11"_s);
                      LineaEsperada(h, 1, u"20ES001A"_s, u"6"_s, u""_s, u"1,00"_s);
                      LineaEsperada(h, 2, u"20ES002B"_s, u"2"_s, u"0,50"_s, u"0,00"_s);
                      TotalDePaginaEsperado(h, u"78.911,11"_s);
                  }));
}

TEST_F(AnexoTest, ALineWithNeitherQuantityNorQuotaKeepsItsRow) {
    const qint32 uno = NuevoEstablecimiento(u"20ES001A"_s);
    GuardarLinea(uno, 1, 0, 0);
    GuardarLinea(NuevoEstablecimiento(u"20ES002B"_s), 2, 50, 100);
    HojaEsperada h;
    LineaEsperada(h, 0, u"20ES001A"_s, u"1"_s, u""_s, u"0,00"_s);
    LineaEsperada(h, 1, u"20ES002B"_s, u"2"_s, u"0,50"_s, u"1,00"_s);
    TotalDePaginaEsperado(h, u"1,00"_s);
    EXPECT_TRUE(ContieneSeguidas(Anexo().at(0), h));
}

TEST_F(AnexoTest, AFullPageHas24RowsAndTheNextOneTheRest) {
    const std::vector<QStringList> paginas = Anexo(25);
    ASSERT_EQ(paginas.size(), 2U);
    ComprobarHoja(paginas.at(0), Hoja(u"1"_s, u"2"_s, [](HojaEsperada& h) {
                      for (int n = 1; n <= 24; ++n) {
                          LineaEsperada(h, n - 1, CIMDeLinea(n), QString::number((n - 1) % 6 + 1),
                                        u"0,%1"_s.arg(n, 2, 10, QLatin1Char('0')), u"%1,00"_s.arg(n));
                      }
                      TotalDePaginaEsperado(h, u"300,00"_s);
                  }));
    ComprobarHoja(paginas.at(1), Hoja(u"2"_s, u"2"_s, [](HojaEsperada& h) {
                      LineaEsperada(h, 0, CIMDeLinea(25), u"1"_s, u"0,25"_s, u"25,00"_s);
                      TotalDePaginaEsperado(h, u"25,00"_s);
                  }));
}

TEST_F(AnexoTest, TheLastPageCanBeEmpty) {
    const std::vector<QStringList> paginas = Anexo(24);
    ASSERT_EQ(paginas.size(), 2U);
    ComprobarHoja(paginas.at(1),
                  Hoja(u"2"_s, u"2"_s, [](HojaEsperada& h) { TotalDePaginaEsperado(h, u"0,00"_s); }));
}

TEST_F(AnexoTest, PagesPrintedAndTheTotalShownFollowTwoRules) {
    const std::vector<Paginacion> tabla{{2, 1, 1},  {11, 1, 1}, {12, 1, 2}, {22, 1, 2}, {23, 2, 2},
                                        {24, 2, 2}, {25, 2, 2}, {34, 2, 2}, {35, 2, 3}, {45, 2, 3},
                                        {46, 3, 3}, {48, 3, 3}, {49, 3, 3}, {57, 3, 3}, {58, 3, 4},
                                        {68, 3, 4}, {69, 4, 4}};
    for (const Paginacion& caso : tabla) {
        EXPECT_EQ(impreso::PaginasDeAnexo(caso.lineas), caso.paginas) << caso.lineas;
        EXPECT_EQ(impreso::TotalDePaginasMostrado(caso.lineas), caso.mostradas) << caso.lineas;
    }
}

TEST_F(AnexoTest, NoLineIsLostHoweverManyThereAre) {
    for (int lineas = 1; lineas <= 5000; ++lineas) {
        ASSERT_GE(impreso::PaginasDeAnexo(lineas) * 24, lineas);
    }
}

TEST_F(AnexoTest, TwoLinesOfTwoEstablishmentsTakeOnePage) {
    GuardarLinea(NuevoEstablecimiento(u"20ES001A"_s), 1, 0, 1000);
    GuardarLinea(NuevoEstablecimiento(u"20ES002B"_s), 1, 0, 2000);
    const std::vector<QStringList> paginas = Anexo();
    ASSERT_EQ(paginas.size(), 1U);
    EXPECT_TRUE(Numerada(paginas.at(0), u"1"_s, u"1"_s));
    EXPECT_EQ(Cuotas(paginas.at(0)), (QStringList{u"10"_s, u"20"_s, u"30"_s}));
}

TEST_F(AnexoTest, TwelveLinesTakeOnePageThatReads1Of2) {
    const std::vector<QStringList> paginas = Anexo(12);
    ASSERT_EQ(paginas.size(), 1U);
    EXPECT_TRUE(Numerada(paginas.at(0), u"1"_s, u"2"_s));
    EXPECT_EQ(Cuotas(paginas.at(0)), CuotasEsperadas(1, 12, u"78"_s));
}

TEST_F(AnexoTest, TwentyThreeLinesLeaveTheSecondPageEmpty) {
    const std::vector<QStringList> paginas = Anexo(23);
    ASSERT_EQ(paginas.size(), 2U);
    EXPECT_EQ(Cuotas(paginas.at(0)), CuotasEsperadas(1, 23, u"276"_s));
    EXPECT_EQ(Cuotas(paginas.at(1)), QStringList{u"0"_s});
    EXPECT_TRUE(Numerada(paginas.at(1), u"2"_s, u"2"_s));
}

TEST_F(AnexoTest, FortyEightLinesLeaveTheThirdPageEmpty) {
    const std::vector<QStringList> paginas = Anexo(48);
    ASSERT_EQ(paginas.size(), 3U);
    EXPECT_EQ(Cuotas(paginas.at(0)), CuotasEsperadas(1, 24, u"300"_s));
    EXPECT_EQ(Cuotas(paginas.at(1)), CuotasEsperadas(25, 48, u"876"_s));
    EXPECT_EQ(Cuotas(paginas.at(2)), QStringList{u"0"_s});
}

TEST_F(AnexoTest, SixtyEightLinesTakeThreePagesThatClaimFour) {
    const std::vector<QStringList> paginas = Anexo(68);
    ASSERT_EQ(paginas.size(), 3U);
    EXPECT_EQ(Cuotas(paginas.at(2)), CuotasEsperadas(49, 68, u"1.170"_s));
    EXPECT_TRUE(Numerada(paginas.at(0), u"1"_s, u"4"_s));
    EXPECT_TRUE(Numerada(paginas.at(1), u"2"_s, u"4"_s));
    EXPECT_TRUE(Numerada(paginas.at(2), u"3"_s, u"4"_s));
}

TEST_F(AnexoTest, OneEstablishmentWithSixProductsHasNone) { EXPECT_TRUE(Anexo(6).empty()); }

TEST_F(AnexoTest, ADeclarationWithoutLinesHasNone) { EXPECT_TRUE(Anexo(0).empty()); }

TEST_F(AnexoTest, EstablishmentsWithTheSameCIMCountAsOne) {
    GuardarLinea(NuevoEstablecimiento(u"20ES001A"_s), 1, 0, 1000);
    GuardarLinea(NuevoEstablecimiento(u"20ES001A"_s), 1, 0, 2000);
    EXPECT_TRUE(Anexo().empty());
}

TEST_F(AnexoTest, AnEstablishmentWithoutCIMAtTheBeginningDoesNotCount) {
    GuardarLinea(NuevoEstablecimiento(u""_s), 1, 0, 1000);
    GuardarLinea(NuevoEstablecimiento(u"20ES001A"_s), 1, 0, 2000);
    EXPECT_TRUE(Anexo().empty());
    GuardarLinea(NuevoEstablecimiento(u"20ES002B"_s), 1, 0, 2000);
    EXPECT_EQ(Anexo().size(), 1U);
}

TEST_F(AnexoTest, TheBanksCopyHasNone) {
    GuardarLineas(30);
    EXPECT_TRUE(Anexo(&cZTImprimir::EntBank).empty());
}

TEST_F(AnexoTest, CopiesDifferInTheirLabelAlone) {
    GuardarLineas(30);
    const std::vector<QStringList> administracion = Anexo(&cZTImprimir::Administracion);
    ASSERT_EQ(administracion.size(), 2U);
    using Caso = std::pair<bool cZTImprimir::*, QString>;
    for (const auto& [ejemplar, etiqueta] :
         {Caso{&cZTImprimir::Interesado, u"AITORTZAILEAREN ALEA / EJEMPLAR PARA EL INTERESADO"_s},
          Caso{&cZTImprimir::Borrador, u"ZIRRIBORROA / BORRADOR"_s}}) {
        const std::vector<QStringList> paginas = Anexo(ejemplar);
        ASSERT_EQ(paginas.size(), 2U);
        for (std::size_t i = 0; i < paginas.size(); ++i) {
            HojaEsperada h;
            EtiquetaDeAnexoEsperada(h, etiqueta);
            EXPECT_EQ(paginas.at(i).first(), h.marcas.first());
            EXPECT_EQ(paginas.at(i).mid(1), administracion.at(i).mid(1));
        }
    }
}

TEST_F(AnexoTest, NothingFollowsTheLanguageOfTheScreen) {
    GuardarLineas(30);
    // A province whose names differ.
    oDeclarante().Provin = 1;
    const std::vector<QStringList> castellano = Anexo();
    EXPECT_EQ(castellano.at(0).filter(u"ABARZELAI ARABA/ÁLAVA"_s).size(), 1);
    oFecha().IDI(u"E"_s);
    oImprimir().FechaPresentacion = u"2007/01/15"_s;
    EXPECT_EQ(Anexo(), castellano);
}

TEST_F(AnexoTest, AYearOfThreeDigitsLeavesItsSecondBoxEmpty) {
    PonerEjercicio(207);
    const std::vector<QStringList> paginas = Anexo(12);
    EXPECT_TRUE(
        ContieneSeguidas(paginas.at(0), HojaEsperada().Datos(7).L(184, 58, u"7"_s).L(188, 58, u""_s)));
}

TEST_F(AnexoTest, EachBlockLeavesArialBehindAndNoBold) {
    GuardarLineas(12);
    const Tabla lineas = impreso::CargarDatosDeAnexo().vBufferAnexo;
    impresora.UsarMilimetros();
    impresora.NuevaPagina();
    const std::vector<std::function<void()>> bloques{
        [&] { impreso::ImprimirCabeceraAnexo(lineas); }, impreso::ImprimirIdentificacionAnexo,
        [&] { impreso::ImprimirDesgloseAnexo(lineas); }, impreso::ImprimirFirmaAnexo};
    for (const std::function<void()>& bloque : bloques) {
        impresora.letra = {u"Courier"_s, 8, true};
        bloque();
        EXPECT_EQ(impresora.letra.nombre, u"Arial"_s);
        EXPECT_FALSE(impresora.letra.negrita);
    }
}

TEST_F(AnexoTest, TheWindowRepaintsOnPage1Only) {
    (void)Anexo(12);
    EXPECT_EQ(pantalla.cesiones, 3);
}
