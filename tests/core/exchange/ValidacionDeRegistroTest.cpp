#include "core/exchange/ValidacionDeRegistro.h"

#include "core/exchange/RegistroDeIntercambio.h"
#include "core/run/Textos.h"
#include "tests/support/DatosDeIntercambio.h"
#include "tests/support/EntornoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

using Codigos = std::vector<int>;

constexpr int kLimite = 149;

class ValidacionDeRegistroTest : public testing::Test {
  protected:
    void TearDown() override { Entorno().OffsetIdioma = 0; }
};

Tabla Bueno() { return TrocearRegistro(LineaDeDeclarante(DeclaranteDePrueba(u"12345678Z"_s))); }

Codigos FaltasDe(const Tabla& registro, int limite = kLimite) {
    const Registro faltas = Validar(registro, limite);
    EXPECT_TRUE(Elemento(faltas, 0).EsVacio());
    Codigos codigos;
    for (std::size_t i = 1; i < faltas.size(); ++i) {
        codigos.push_back(faltas.at(i).aEntero16());
    }
    return codigos;
}

/// The faults of a good record in which a field, told by its row, has that value.
Codigos Con(int fila, const QString& valor) {
    Tabla registro = Bueno();
    registro(0, fila) = valor;
    return FaltasDe(registro);
}

}  // namespace

TEST_F(ValidacionDeRegistroTest, AGoodRecordHasNoFaultAndAnUpperBoundOfZero) {
    EXPECT_EQ(Validar(Bueno(), kLimite).size(), 1U);
}

TEST_F(ValidacionDeRegistroTest, EveryFieldHasItsCode) {
    EXPECT_EQ(Con(1, u"12345678A"_s), Codigos{1});
    EXPECT_EQ(Con(1, u"12345678z"_s), Codigos{1});
    EXPECT_EQ(Con(2, QString(40, u' ')), Codigos{2});
    EXPECT_EQ(Con(5, u"12 B "_s), Codigos{9});
    EXPECT_EQ(Con(10, u"XX"_s), Codigos{10});
    EXPECT_EQ(Con(11, u"2000O"_s), Codigos{11});
    EXPECT_EQ(Con(12, u"   "_s), Codigos{15});
    EXPECT_EQ(Con(13, QString(25, u' ')), Codigos{7});
    EXPECT_EQ(Con(14, u"94X"_s), Codigos{12});
    EXPECT_EQ(Con(15, u"123 456"_s), Codigos{13});
}

TEST_F(ValidacionDeRegistroTest, AMissingKindOfWayAndAMissingWayGiveTheSameCode) {
    Tabla registro = Bueno();
    registro(0, 3) = u"  "_s;
    EXPECT_EQ(FaltasDe(registro), Codigos{8});
    registro(0, 4) = QString(30, u' ');
    EXPECT_EQ(FaltasDe(registro), (Codigos{8, 8}));
}

TEST_F(ValidacionDeRegistroTest, BlanksAreNoNumberAndAShortCodeIsAFaultOfItsOwn) {
    EXPECT_EQ(Con(10, u"  "_s), (Codigos{10, 4}));
    EXPECT_EQ(Con(10, QString()), (Codigos{10, 4, 6}));
    EXPECT_EQ(Con(10, u"X"_s), (Codigos{10, 6}));
    EXPECT_EQ(Con(10, u"2"_s), Codigos{});
    EXPECT_EQ(Con(11, QString()), (Codigos{11, 6}));
    EXPECT_EQ(Con(11, u"     "_s), Codigos{11});
    EXPECT_EQ(Con(11, u"7"_s), Codigos{});
}

TEST_F(ValidacionDeRegistroTest, OnlyBlanksCountAsMissing) {
    EXPECT_EQ(Con(2, QString(40, u' ')), Codigos{2});
    for (const QString& algo : {u"\u00A0"_s, u"\t"_s, u" \u00A0 "_s}) {
        EXPECT_EQ(Con(2, algo), Codigos{});
        EXPECT_EQ(Con(13, algo), Codigos{});
    }
}

TEST_F(ValidacionDeRegistroTest, TheProvinceIsNotComparedWithThePostalCodeNorWithTheTables) {
    EXPECT_EQ(Con(10, u"99"_s), Codigos{});
    EXPECT_EQ(Con(3, u"ZZ"_s), Codigos{});
    EXPECT_EQ(Con(12, u"999"_s), Codigos{});
}

TEST_F(ValidacionDeRegistroTest, LetterStaircaseFloorAndHandAreNotChecked) {
    for (const int fila : {6, 7, 8, 9}) {
        EXPECT_EQ(Con(fila, QString()), Codigos{});
        EXPECT_EQ(Con(fila, u"?!"_s), Codigos{});
    }
}

TEST_F(ValidacionDeRegistroTest, FieldsAreKnownByTheirNameInAnyCase) {
    Tabla registro = Bueno();
    registro(0, 2) = QString();
    registro(1, 2) = u"nombre"_s;
    EXPECT_EQ(FaltasDe(registro), Codigos{2});
    registro(1, 2) = u"otro"_s;
    EXPECT_EQ(FaltasDe(registro), Codigos{});
}

TEST_F(ValidacionDeRegistroTest, AnEmptyLineFailsInEveryCheckedFieldInTheirOrder) {
    EXPECT_EQ(FaltasDe(TrocearRegistro(QString())), (Codigos{1, 2, 8, 8, 9, 10, 4, 6, 11, 6, 15, 7, 12, 13}));
}

TEST_F(ValidacionDeRegistroTest, ALengthAboveTheLimitIsTheOneFault) {
    Tabla registro = Bueno();
    registro(0, 1) = u"malo"_s;
    registro(0, 2) = QString(55, u'N');
    EXPECT_EQ(FaltasDe(registro, 150), Codigos{1});
    EXPECT_EQ(FaltasDe(registro, 149), Codigos{14});
}

TEST_F(ValidacionDeRegistroTest, NoLineIsLongEnoughForTheLimitOfTheImport) {
    EXPECT_EQ(kLimiteDeLargo, kLimite);
    EXPECT_EQ(FaltasDe(TrocearRegistro(QString(1000, u'9'))).front(), 1);
}

TEST_F(ValidacionDeRegistroTest, EveryCodeHasItsMessageInBothLanguages) {
    const std::vector<std::pair<QString, QString>> mensajes{
        {u"El NIF es erróneo o carece de dígito de control"_s,
         u"IFZ okerra da edo kontrol-digitua falta zaio"_s},
        {u"Falta el nombre del declarante"_s, u"Aitortzailearen izena falta da"_s},
        {u"Debe seleccionarse el tipo de vía pública"_s, u"Kale-mota aukeratu behar da"_s},
        {u"Falta el nombre de la provincia"_s, u"Probintziaren izena falta da"_s},
        {u"El código postal es incorrecto"_s, u"Posta-kodea ez da zuzena"_s},
        {u"El código postal no coincide con el código de provincia"_s,
         u"Posta-kodea ez dator bat probintziaren kodearekin"_s},
        {u"Falta el nombre del municipio"_s, u"Udalerriaren izena falta da"_s},
        {u"Falta el nombre de la vía pública"_s, u"Kalearen izena falta da"_s},
        {u"El número de la vivienda debe ser numérico"_s, u"Zenbakia eremuak zenbakizkoa izan behar du"_s},
        {u"El Código de Provincia debe ser numérico"_s,
         u"Probintziaren Kodea eremuak zenbakizkoa izan behar du"_s},
        {u"El Código Postal debe ser numérico"_s, u"Posta-Kodea eremuak zenbakizkoa izan behar du"_s},
        {u"El Prefijo debe ser numérico"_s,
         u"Telefonoaren Aurrezenbakia eremuak zenbakizkoa izan behar du"_s},
        {u"El Número de Teléfono debe ser numérico"_s,
         u"Telefono-Zenbakia eremuak zenbakizkoa izan behar du"_s},
        {u"El registro que se desea importar carece de la longitud requerida."_s,
         u"Inportatu nahi duzun erregistroak ez du behar den luzera."_s},
        {u"El código de municipio debe ser numérico."_s, u"Udalerriaren kodea numerikoa izan behar da."_s}};
    for (int codigo = 1; codigo <= static_cast<int>(mensajes.size()); ++codigo) {
        const auto& [castellano, euskera] = mensajes.at(static_cast<std::size_t>(codigo - 1));
        Entorno().OffsetIdioma = 0;
        EXPECT_EQ(MensajeDeFalta(codigo), castellano) << codigo;
        Entorno().OffsetIdioma = 1000;
        EXPECT_EQ(MensajeDeFalta(codigo), euskera) << codigo;
    }
}

TEST_F(ValidacionDeRegistroTest, CodesOutsideOneToFifteenHaveNoMessageOfTheirOwn) {
    for (const int codigo : {-1, 0, 16, 19, 20, 26, 27}) {
        EXPECT_FALSE(MensajeDeFalta(codigo).has_value()) << codigo;
    }
}

namespace {

class ValidarQueFallaTest : public EntornoDePrueba {};

}  // namespace

TEST_F(ValidarQueFallaTest, AFailureIsShownUnderItsFixedNameAndNothingComesBack) {
    Tabla registro = Bueno();
    registro(0, 7) = Valor::Nulo();
    EXPECT_TRUE(Validar(registro, kLimite).empty());
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"Importación.Validar"_s);
}
