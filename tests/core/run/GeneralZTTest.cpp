#include "core/run/GeneralZT.h"

#include <QDir>
#include <cmath>
#include <limits>

#include "core/run/Textos.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kLatin1 = 0xFF;
constexpr qint16 kEuskera = 1000;
/// An offset under which the table of texts has no row.
constexpr qint16 kSinTextos = 5000;

class GeneralZTTest : public EntornoDePrueba {
  protected:
    /// What the filter of text must give for a character of Latin-1.
    static int Esperado(int codigo) {
        const QString tal = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZÑÇ !$%&()*+,-./:;<=>?\\_ºª¿¡"_s;
        const QString minusculas = u"abcdefghijklmnopqrstuvwxyzñç"_s;
        const QString mayusculas = u"ABCDEFGHIJKLMNOPQRSTUVWXYZÑÇ"_s;
        const QChar c(static_cast<char16_t>(codigo));
        if (codigo == 8 || tal.contains(c)) {
            return codigo;
        }
        const auto lugar = minusculas.indexOf(c);
        return lugar < 0 ? 0 : mayusculas.at(lugar).unicode();
    }
};

/// An amount of up to a thousand million as whole and decimal part, drawn for the properties of rounding.
double Cantidad() {
    const int entero = *rc::gen::inRange(-1'000'000'000, 1'000'000'001);
    const int millonesimas = *rc::gen::inRange(0, 1'000'000);
    return entero + millonesimas / 1e6;
}

}  // namespace

TEST(FiltrosDeTeclas, NaturalsLetOnlyDigitsAndTheBackspacePass) {
    for (int codigo = 0; codigo <= kLatin1; ++codigo) {
        const bool pasa = codigo == 8 || (codigo >= 48 && codigo <= 57);
        int tecla = codigo;
        Keypress_Naturales(tecla);
        EXPECT_EQ(tecla, pasa ? codigo : 0) << codigo;
    }
}

TEST(FiltrosDeTeclas, NaturalsDropWhatIsNoCharacterOfLatin1) {
    for (const int codigo : {-1, 0x0661, 0xFF11, 0x20AC, 0x10030}) {
        int tecla = codigo;
        Keypress_Naturales(tecla);
        EXPECT_EQ(tecla, 0) << codigo;
    }
}

TEST_F(GeneralZTTest, EveryCharacterOfLatin1IsCapitalisedAndAcceptedOrRefusedByTheSet) {
    for (int codigo = 0; codigo <= kLatin1; ++codigo) {
        EXPECT_EQ(CaracterAceptable(codigo), Esperado(codigo)) << codigo;
    }
}

TEST(FiltrosDeTeclas, EnyeIsAcceptedAsACapitalAndAnAccentedVowelIsRefused) {
    EXPECT_EQ(CaracterAceptable(u'ñ'), u'Ñ');
    EXPECT_EQ(CaracterAceptable(u'Ñ'), u'Ñ');
    EXPECT_EQ(CaracterAceptable(u'ç'), u'Ç');
    EXPECT_EQ(CaracterAceptable(u'é'), 0);
    EXPECT_EQ(CaracterAceptable(u'É'), 0);
}

TEST(FiltrosDeTeclas, QuotesHashAtAndBracketsAreRefusedAndTheBackspaceIsNot) {
    for (const QChar c : u"\"'#@[]{}|^~`"_s) {
        EXPECT_EQ(CaracterAceptable(c.unicode()), 0) << int{c.unicode()};
    }
    EXPECT_EQ(CaracterAceptable(8), 8);
}

TEST(FiltrosDeTeclas, CharactersOutsideLatin1AreRefused) {
    for (const int codigo : {-1, 0x0178, 0x0303, 0x20AC, 0xFFFF, 0x10041}) {
        EXPECT_EQ(CaracterAceptable(codigo), 0) << codigo;
    }
}

TEST(CamposVacios, BCGivesANumericZeroForTheEmptyTextOnly) {
    EXPECT_EQ(BC(Valor(QString())), Valor(qint16{0}));
    EXPECT_EQ(BC(Valor()), Valor(qint16{0}));
    EXPECT_EQ(BC(Valor(u" "_s)), Valor(u" "_s));
    EXPECT_EQ(BC(Valor(u"0"_s)), Valor(u"0"_s));
    EXPECT_EQ(BC(Valor(u"12"_s)), Valor(u"12"_s));
    EXPECT_EQ(BC(Valor(2.5)), Valor(2.5));
}

TEST_F(GeneralZTTest, CBShowsAZeroAsNothingHoweverItIsWritten) {
    for (const QString& cero : {u"0"_s, u"00"_s, u"0.0"_s, u"0,00"_s, u" 0 "_s, u"-0"_s}) {
        EXPECT_EQ(CB(Valor(cero)), Valor(QString())) << cero.toStdString();
    }
    EXPECT_EQ(CB(Valor(qint16{0})), Valor(QString()));
    EXPECT_EQ(CB(Valor(qint32{0})), Valor(QString()));
    EXPECT_EQ(CB(Valor(0.0)), Valor(QString()));
}

TEST_F(GeneralZTTest, CBShowsAZeroAsNothingWithAPointForDecimals) {
    FijarRegional({u'.', u','});
    EXPECT_EQ(CB(Valor(u"0.0"_s)), Valor(QString()));
    EXPECT_EQ(CB(Valor(u"0.5"_s)), Valor(u"0.5"_s));
}

TEST(CamposVacios, CBGivesAnyOtherNumberBackAsItCame) {
    EXPECT_EQ(CB(Valor(u"12"_s)), Valor(u"12"_s));
    EXPECT_EQ(CB(Valor(u" 012 "_s)), Valor(u" 012 "_s));
    EXPECT_EQ(CB(Valor(u"-1"_s)), Valor(u"-1"_s));
    EXPECT_EQ(CB(Valor(qint16{20})), Valor(qint16{20}));
    EXPECT_EQ(CB(Valor(0.01)), Valor(0.01));
}

TEST(CamposVacios, CBOfATextThatIsNoNumberRaisesATypeMismatchUnderItsName) {
    for (const QString& texto : {u"doce"_s, u""_s, u"1x"_s}) {
        EXPECT_EQ(NumeroDelError([&] { (void)CB(Valor(texto)); }), 13) << texto.toStdString();
        EXPECT_EQ(DescripcionDelError([&] { (void)CB(Valor(texto)); }),
                  u"General.CB\r\nNo coinciden los tipos"_s);
    }
}

TEST(CamposVacios, CBOfNullFailsUnderItsNameAndBCGivesItBack) {
    EXPECT_EQ(NumeroDelError([] { (void)CB(Valor::Nulo()); }), 94);
    EXPECT_EQ(DescripcionDelError([] { (void)CB(Valor::Nulo()); }), u"General.CB\r\nUso no válido de Null"_s);
    EXPECT_TRUE(BC(Valor::Nulo()).EsNulo());
}

TEST(Redondeo, HalvesGoAwayFromZero) {
    EXPECT_EQ(RedondearEntero(0.5), 1.0);
    EXPECT_EQ(RedondearEntero(1.5), 2.0);
    EXPECT_EQ(RedondearEntero(2.5), 3.0);
    EXPECT_EQ(RedondearEntero(-0.5), -1.0);
    EXPECT_EQ(RedondearEntero(-2.5), -3.0);
    EXPECT_EQ(RedondearEntero(2.49), 2.0);
    EXPECT_EQ(RedondearEntero(-2.49), -2.0);
    EXPECT_EQ(RedondearEntero(0.0), 0.0);
    EXPECT_EQ(Redondear(0.125, 2), 0.13);
    EXPECT_EQ(Redondear(-0.125, 2), -0.13);
    EXPECT_EQ(Redondear(2.5, 0), 3.0);
}

TEST(Redondeo, TheBinaryValueIsRoundedWithoutACorrection) {
    EXPECT_EQ(Redondear(2.675, 2), 2.67);
    EXPECT_EQ(Redondear(1.005, 2), 1.0);
    EXPECT_EQ(Redondear(0.285, 2), 0.28);
}

TEST(Redondeo, TheSignIsKept) {
    EXPECT_EQ(Redondear(-1.005, 2), -1.0);
    EXPECT_EQ(Redondear(-1.255, 2), -1.25);
    EXPECT_EQ(Redondear(-0.999, 2), -1.0);
}

TEST(Redondeo, UpToSixDecimalsAreRoundedAndMoreGiveTheValueBack) {
    EXPECT_DOUBLE_EQ(Redondear(1.23456789, 6), 1.234568);
    EXPECT_EQ(Redondear(1.23456789, 7), 1.23456789);
    EXPECT_EQ(Redondear(296.6536, 2), 296.65);
    EXPECT_EQ(Redondear(999.999, 2), 1000.0);
}

RC_GTEST_PROP(Redondeo, TheResultIsAtMostHalfAUnitAway, ()) {
    const double valor = Cantidad();
    const auto decimales = *rc::gen::inRange<qint16>(0, 7);
    const double unidad = std::pow(10.0, -decimales);
    const double holgura = 4 * std::fabs(valor) * std::numeric_limits<double>::epsilon();
    RC_ASSERT(std::fabs(Redondear(valor, decimales) - valor) <= unidad / 2 + holgura);
}

RC_GTEST_PROP(Redondeo, NegativeAmountsRoundLikePositiveOnes, ()) {
    const double valor = Cantidad();
    const auto decimales = *rc::gen::inRange<qint16>(0, 9);
    RC_ASSERT(Redondear(-valor, decimales) == -Redondear(valor, decimales));
}

RC_GTEST_PROP(Redondeo, RoundingARoundedAmountChangesNothing, ()) {
    const auto decimales = *rc::gen::inRange<qint16>(0, 9);
    const double redondeado = Redondear(Cantidad(), decimales);
    RC_ASSERT(Redondear(redondeado, decimales) == redondeado);
}

RC_GTEST_PROP(Redondeo, RoundingKeepsTheOrderOfAmounts, ()) {
    const double a = Cantidad();
    const double b = Cantidad();
    const auto decimales = *rc::gen::inRange<qint16>(0, 7);
    RC_ASSERT((a <= b) == (Redondear(a, decimales) <= Redondear(b, decimales)) ||
              Redondear(a, decimales) == Redondear(b, decimales));
}

RC_GTEST_PROP(Redondeo, WhereTheProductIsExactTheResultIsTheExactDecimalOne, ()) {
    // A fraction of 1/1024ths times 100 has no binary error, halves included (of 0.125, say).
    const qint64 entero = *rc::gen::inRange(0, 1'000'000'000);
    const qint64 fraccion = *rc::gen::oneOf(
        rc::gen::inRange(0, 1024), rc::gen::map(rc::gen::inRange(0, 8), [](int n) { return n * 128; }));
    const qint64 centimos = entero * 100 + (fraccion * 100 * 2 + 1024) / 2048;
    const double valor = static_cast<double>(entero) + static_cast<double>(fraccion) / 1024.0;
    RC_ASSERT(std::llround(Redondear(valor, 2) * 100.0) == centimos);
}

TEST_F(GeneralZTTest, APeriodFromOneToFourHasItsNameInTheLanguageInForce) {
    EXPECT_EQ(DameStringPeriodo(1), u"1º Trimestre"_s);
    EXPECT_EQ(DameStringPeriodo(4), u"4º Trimestre"_s);
    Entorno().OffsetIdioma = kEuskera;
    for (qint16 periodo = 1; periodo <= 4; ++periodo) {
        EXPECT_EQ(DameStringPeriodo(periodo), Texto(38 + periodo));
        EXPECT_TRUE(DameStringPeriodo(periodo).startsWith(QString::number(periodo)));
    }
}

TEST_F(GeneralZTTest, AnyOtherPeriodHasTheEmptyName) {
    for (const qint16 periodo : {qint16{-1}, qint16{0}, qint16{5}, qint16{39}}) {
        EXPECT_EQ(DameStringPeriodo(periodo), QString()) << periodo;
    }
}

TEST_F(GeneralZTTest, TheNameOfAPeriodGivesItsNumberBackInBothLanguages) {
    for (const qint16 idioma : {qint16{0}, kEuskera}) {
        Entorno().OffsetIdioma = idioma;
        for (qint16 periodo = 1; periodo <= 4; ++periodo) {
            EXPECT_EQ(ObtenerPeriodo(DameStringPeriodo(periodo)), Valor(QString::number(periodo)));
        }
    }
}

TEST_F(GeneralZTTest, ATextThatNamesNoPeriodOfTheLanguageInForceIsAnError) {
    const QString castellano = DameStringPeriodo(2);
    EXPECT_EQ(ObtenerPeriodo(QString()), Valor(u"Error"_s));
    EXPECT_EQ(ObtenerPeriodo(castellano.toUpper()), Valor(u"Error"_s));
    Entorno().OffsetIdioma = kEuskera;
    EXPECT_EQ(ObtenerPeriodo(castellano), Valor(u"Error"_s));
}

TEST_F(GeneralZTTest, ANameOfAPeriodThatIsNotThereFailsUnderTheNameOfTheProcedureAskedFor) {
    Entorno().OffsetIdioma = kSinTextos;
    const auto nombre = [] { (void)DameStringPeriodo(1); };
    EXPECT_EQ(NumeroDelError(nombre), 326);
    EXPECT_TRUE(DescripcionDelError(nombre).startsWith(u"General.DameStringPeriodo\r\nNo se encontró"));
    EXPECT_EQ(DameStringPeriodo(0), QString());
    const auto numero = [] { (void)ObtenerPeriodo(u"1º Trimestre"_s); };
    EXPECT_EQ(NumeroDelError(numero), 326);
    EXPECT_TRUE(DescripcionDelError(numero).startsWith(u"General.ObtenerPeriodo\r\nNo se encontró"));
}

TEST(Directorios, TheFolderGoesUpToAndIncludesTheLastSeparator) {
    EXPECT_EQ(Directorio(uR"(C:\ZELT\Declaran.txt)"_s), uR"(C:\ZELT\)"_s);
    EXPECT_EQ(Directorio(uR"(C:\ZELT\)"_s), uR"(C:\ZELT\)"_s);
    EXPECT_EQ(Directorio(uR"(\\equipo\datos\a.b\c)"_s), uR"(\\equipo\datos\a.b\)"_s);
    const QString nativa = QDir::toNativeSeparators(u"/home/u/ZELT/"_s);
    EXPECT_EQ(Directorio(nativa + u"Declaran.txt"_s), nativa);
}

TEST(Directorios, ATextWithoutASeparatorHasNoFolder) {
    EXPECT_EQ(Directorio(u"Declaran.txt"_s), QString());
    EXPECT_EQ(Directorio(QString()), QString());
}

TEST_F(GeneralZTTest, TheSelectsOfThePickListsAreThoseOfTheLanguageInForce) {
    EXPECT_EQ(SelectSiglas(), u"Select T03_CODIGO, T03_CAS From T03_SIGLASVIA ORDER BY T03_CAS"_s);
    EXPECT_EQ(SelectProvincias(), u"Select T02_PROID, T02_PROCAS From T02_Provincias Order By T02_PROCAS"_s);
    EXPECT_EQ(SelectMunicipios(), u"Select T04_CODMUN, T04_NOMMUN From T04_MUNICIPIOS Order By T04_NOMMUN"_s);
    Entorno().OffsetIdioma = kEuskera;
    EXPECT_EQ(SelectSiglas(), u"Select T03_CODIGO, T03_EUS From T03_SIGLASVIA ORDER BY T03_EUS"_s);
    EXPECT_EQ(SelectProvincias(), u"Select T02_PROID, T02_PROEUS From T02_Provincias Order By T02_PROEUS"_s);
    EXPECT_EQ(SelectMunicipios(), u"Select T04_CODMUN, T04_NOMMUN From T04_MUNICIPIOS Order By T04_NOMMUN"_s);
}

TEST_F(GeneralZTTest, TheResultOfASelectHasItsRecordsFromRowZero) {
    Tabla buffer;
    CargarResultado(u"Select T02_PROID From T02_Provincias Order By T02_PROID"_s, buffer);
    EXPECT_EQ(buffer.UltimaFila(), 51);
    EXPECT_EQ(buffer(0, 0).aEntero16(), 1);
    EXPECT_EQ(buffer(0, 51).aEntero16(), 52);
}

TEST_F(GeneralZTTest, AFailureOfASelectClimbsUnderTheNameOfTheProcedure) {
    Tabla buffer;
    const QString descripcion =
        DescripcionDelError([&] { CargarResultado(u"Select nada From nada"_s, buffer); });
    EXPECT_TRUE(descripcion.startsWith(u"General.CargarResultado\r\n")) << descripcion.toStdString();
}

TEST_F(GeneralZTTest, NamesOfTheCodeTablesComeInCapitalsAndInTheLanguageInForce) {
    EXPECT_EQ(ObtenerNombreProvincia(1), u"ARABA/ÁLAVA"_s);
    EXPECT_EQ(ObtenerNombreCalle(u"CL"_s), u"CALLE"_s);
    EXPECT_EQ(ObtenerNombreMunicipio(1), u"ABARZELAI"_s);
    Entorno().OffsetIdioma = kEuskera;
    EXPECT_EQ(ObtenerNombreProvincia(1), u"ARABA"_s);
    EXPECT_EQ(ObtenerNombreCalle(u"CL"_s), u"KALEA"_s);
    EXPECT_EQ(ObtenerNombreMunicipio(1), u"ABARZELAI"_s);
}

TEST_F(GeneralZTTest, AnUnknownCodeHasTheEmptyName) {
    EXPECT_EQ(ObtenerNombreProvincia(99), QString());
    EXPECT_EQ(ObtenerNombreMunicipio(0), QString());
    EXPECT_EQ(ObtenerNombreCalle(u"??"_s), QString());
}

TEST_F(GeneralZTTest, TheRangeOfYearsAndQuartersIsThatOfTheReferenceStore) {
    InicializarDatosGenerales();
    EXPECT_EQ(Entorno().EjercicioMinimo, 2002);
    EXPECT_EQ(Entorno().PeriodoMinimo, 1);
    EXPECT_EQ(Entorno().EjercicioMaximo, 2012);
    EXPECT_EQ(Entorno().PeriodoMaximo, 4);
}

TEST_F(GeneralZTTest, GeneralDataOfFewerThanFourNumbersAreAnIndexErrorUnderTheNameOfTheProcedure) {
    const Registro tres{qint16{2003}, qint16{2}, qint16{2009}};
    const auto guardar = [&tres] { InicializarDatosGenerales(tres); };
    EXPECT_EQ(NumeroDelError(guardar), 9);
    EXPECT_EQ(DescripcionDelError(guardar),
              u"General.InicializarDatosGenerales\r\nEl subíndice está fuera del intervalo"_s);
    InicializarDatosGenerales({qint16{2003}, qint16{2}, qint16{2009}, qint16{3}});
    EXPECT_EQ(Entorno().EjercicioMinimo, 2003);
    EXPECT_EQ(Entorno().PeriodoMinimo, 2);
    EXPECT_EQ(Entorno().EjercicioMaximo, 2009);
    EXPECT_EQ(Entorno().PeriodoMaximo, 3);
}

TEST_F(GeneralZTTest, TheMessageBoxComesWithTheDefaultPointerAndItsAnswerIsKept) {
    pantalla.respuesta = 2;
    EXPECT_EQ(Mensaje(u"texto"_s, u"título"_s, false), 2);
    EXPECT_EQ(Entorno().RespuestaMensaje, 2);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes[0].texto, u"texto"_s);
    EXPECT_EQ(pantalla.mensajes[0].titulo, u"título"_s);
    EXPECT_FALSE(pantalla.mensajes[0].unBoton);
    EXPECT_EQ(pantalla.punteros, std::vector{Puntero::Normal});
}

TEST_F(GeneralZTTest, AFailureOfTheErrorDialogItselfClimbsUnderTheNameOfTheProcedure) {
    FijarPantalla(nullptr);
    const auto mostrar = [] { ShowError(u"f"_s, u"e"_s, u"d"_s); };
    EXPECT_EQ(NumeroDelError(mostrar), 91);
    EXPECT_TRUE(DescripcionDelError(mostrar).startsWith(u"General.ShowError\r\n"));
}
