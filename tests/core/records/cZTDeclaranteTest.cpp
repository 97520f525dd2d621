#include "core/records/cZTDeclarante.h"

#include <rapidcheck.h>

#include "core/run/Textos.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "core/services/svrZELT/cZTEstablecimientos.h"
#include "tests/support/AlmacenRapido.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/Generadores.h"
#include "tests/support/LineasEsperadas.h"

using namespace Qt::StringLiterals;

namespace {

/// Codes of the faults in the order in which the rules ran.
using Codigos = std::vector<qint16>;

class cZTDeclaranteTest : public EntornoDePrueba {
  protected:
    /// Fills the shared record with a declarant that passes every rule.
    static cZTDeclarante& Bueno() {
        cZTDeclarante& d = oDeclarante();
        d.Modo = cZTDeclarante::kModoNuevo;
        d.InicializaDatos();
        d.NIF = u"12345678Z"_s;
        d.Nombre = u"GASOLINERA NORTE SL"_s;
        d.Domicilio = u"MAYOR"_s;
        d.CPost = 20001;
        d.Munici = u"HIRI"_s;
        return d;
    }

    /// Stores a declarant that passes every rule and leaves it open.
    static qint32 Guardado(const QString& nif = u"12345678Z"_s) {
        cZTDeclarante& d = Bueno();
        d.NIF = nif;
        d.CSDE = d.GuardarDeclarante();
        d.Modo = cZTDeclarante::kModoExistente;
        return d.CSDE;
    }

    /// Validates the shared record, and gives the codes of the list of faults that came up.
    Codigos Faltas() {
        pantalla.listas.clear();
        const bool valido = oDeclarante().ValidarDatos();
        EXPECT_EQ(valido, pantalla.listas.empty());
        Codigos codigos;
        if (!pantalla.listas.empty()) {
            const Tabla& lista = pantalla.listas.front();
            for (int i = 0; i <= lista.UltimaFila(); ++i) {
                codigos.push_back(lista(1, i).aEntero16());
            }
        }
        return codigos;
    }

    /// Expects that the list that comes up reads as these texts, one after the other, in both languages.
    void EsperarLineas(const std::vector<int>& textos) {
        pantalla.listas.clear();
        EXPECT_FALSE(oDeclarante().ValidarDatos());
        ASSERT_EQ(pantalla.listas.size(), 1U);
        for (const qint16 offset : {qint16{0}, qint16{1000}}) {
            Entorno().OffsetIdioma = offset;
            EXPECT_EQ(LineasDeErrores(pantalla.listas.front()), LineasEsperadas(textos, offset));
        }
    }

    /// Display order of the fault that stands in row `i` of the list that came up.
    [[nodiscard]] qint16 Orden(int i) const { return pantalla.listas.at(0)(0, i).aEntero16(); }

    /// The one failure that was reported.
    [[nodiscard]] const PantallaGrabadora::ErrorMostrado& ErrorUnico() const {
        EXPECT_EQ(pantalla.errores.size(), 1U);
        return pantalla.errores.at(0);
    }

    static void PerderElAlmacen() { Entorno().mdbmod = Entorno().mdbPath + u"NoExiste.mdb"_s; }
};

}  // namespace

TEST_F(cZTDeclaranteTest, ANewRecordIsBlankWithKindOfWayCLAndTheProvinceOfTheAuthority) {
    cZTDeclarante& d = oDeclarante();
    d.CSDE = 9;
    d.Nombre = u"X"_s;
    d.NIF = u"X"_s;
    d.Siglas = u"AV"_s;
    d.Domicilio = u"X"_s;
    d.Mano = d.Letra = d.Escal = d.Piso = d.Munici = u"X"_s;
    d.Numero = d.CPost = d.TelNum = 9;
    d.Provin = d.CMuni = d.Telepre = 9;
    d.Modificado = true;
    d.Procedencia = cZTDeclarante::kDesdeListaDeclaraciones;
    d.Modo = cZTDeclarante::kModoNuevo;
    d.InicializaDatos();

    EXPECT_EQ(d.Siglas, u"CL"_s);
    EXPECT_EQ(d.Provin, 20);
    EXPECT_EQ(d.CSDE, 0);
    for (const QString& texto : {d.Nombre, d.NIF, d.Domicilio, d.Mano, d.Letra, d.Escal, d.Piso, d.Munici}) {
        EXPECT_EQ(texto, QString());
    }
    EXPECT_EQ(d.Numero, 0);
    EXPECT_EQ(d.CPost, 0);
    EXPECT_EQ(d.TelNum, 0);
    EXPECT_EQ(d.CMuni, 0);
    EXPECT_EQ(d.Telepre, 0);
    EXPECT_FALSE(d.Modificado);
    EXPECT_EQ(d.Modo, cZTDeclarante::kModoNuevo);
    EXPECT_EQ(d.Procedencia, cZTDeclarante::kDesdeListaDeclaraciones);
}

TEST_F(cZTDeclaranteTest, AnyOtherModoOnlyClearsModificado) {
    cZTDeclarante& d = Bueno();
    d.Modo = 1;
    d.Modificado = true;
    d.InicializaDatos();
    EXPECT_FALSE(d.Modificado);
    EXPECT_EQ(d.Nombre, u"GASOLINERA NORTE SL"_s);
}

TEST_F(cZTDeclaranteTest, AnExistingRecordIsTheDeclarantOfTheSharedInstance) {
    const qint32 csde = Guardado();
    oDeclarante().CSDE = csde;
    cZTDeclarante otro;
    otro.Modo = cZTDeclarante::kModoExistente;
    otro.CSDE = 777;
    otro.InicializaDatos();
    EXPECT_EQ(otro.NIF, u"12345678Z"_s);
    EXPECT_EQ(otro.CSDE, 777);
}

TEST_F(cZTDeclaranteTest, LoadingLeavesKeyModoAndModificado) {
    const qint32 csde = Guardado();
    cZTDeclarante d;
    d.CSDE = 4;
    d.Modo = 7;
    d.Modificado = true;
    d.CargarDeclarante(csde);
    EXPECT_EQ(d.Nombre, u"GASOLINERA NORTE SL"_s);
    EXPECT_EQ(d.CSDE, 4);
    EXPECT_EQ(d.Modo, 7);
    EXPECT_TRUE(d.Modificado);
}

TEST_F(cZTDeclaranteTest, TextsAreInCapitalsOnceLoaded) {
    cZTDeclarante& d = Bueno();
    d.NIF = u"12345678z"_s;
    d.Nombre = u"ñandú"_s;
    d.Siglas = u"cl"_s;
    d.Domicilio = u"mayor"_s;
    d.Letra = u"b"_s;
    d.Escal = u"e"_s;
    d.Piso = u"p"_s;
    d.Mano = u"izq"_s;
    d.Munici = u"hiri"_s;
    d.CargarDeclarante(d.GuardarDeclarante());
    EXPECT_EQ(d.NIF, u"12345678Z"_s);
    EXPECT_EQ(d.Nombre, u"ÑANDÚ"_s);
    EXPECT_EQ(d.Siglas, u"CL"_s);
    EXPECT_EQ(d.Domicilio, u"MAYOR"_s);
    EXPECT_EQ(d.Letra, u"B"_s);
    EXPECT_EQ(d.Escal, u"E"_s);
    EXPECT_EQ(d.Piso, u"P"_s);
    EXPECT_EQ(d.Mano, u"IZQ"_s);
    EXPECT_EQ(d.Munici, u"HIRI"_s);
}

TEST_F(cZTDeclaranteTest, EveryFieldComesBackFromTheStore) {
    NoEsperarAlDisco();
    EXPECT_TRUE(rc::check("a declarant is loaded as it was stored", [] {
        cZTDeclarante d;
        d.Modo = cZTDeclarante::kModoNuevo;
        d.NIF = *TextoEnMayusculas(9);
        d.Nombre = *TextoEnMayusculas(40);
        d.Siglas = *TextoEnMayusculas(2);
        d.Domicilio = *TextoEnMayusculas(20);
        d.Numero = *rc::gen::arbitrary<qint32>();
        d.Letra = *TextoEnMayusculas(5);
        d.Escal = *TextoEnMayusculas(2);
        d.Piso = *TextoEnMayusculas(2);
        d.Mano = *TextoEnMayusculas(3);
        d.Provin = *rc::gen::arbitrary<qint16>();
        d.CPost = *rc::gen::arbitrary<qint32>();
        d.CMuni = *rc::gen::arbitrary<qint16>();
        d.Munici = *TextoEnMayusculas(12);
        d.Telepre = *rc::gen::arbitrary<qint16>();
        d.TelNum = *rc::gen::arbitrary<qint32>();

        cZTDeclarante leido;
        leido.CargarDeclarante(d.GuardarDeclarante());
        RC_ASSERT(leido.NIF == d.NIF);
        RC_ASSERT(leido.Nombre == d.Nombre);
        RC_ASSERT(leido.Siglas == d.Siglas);
        RC_ASSERT(leido.Domicilio == d.Domicilio);
        RC_ASSERT(leido.Numero == d.Numero);
        RC_ASSERT(leido.Letra == d.Letra);
        RC_ASSERT(leido.Escal == d.Escal);
        RC_ASSERT(leido.Piso == d.Piso);
        RC_ASSERT(leido.Mano == d.Mano);
        RC_ASSERT(leido.Provin == d.Provin);
        RC_ASSERT(leido.CPost == d.CPost);
        RC_ASSERT(leido.CMuni == d.CMuni);
        RC_ASSERT(leido.Munici == d.Munici);
        RC_ASSERT(leido.Telepre == d.Telepre);
        RC_ASSERT(leido.TelNum == d.TelNum);
    }));
}

TEST_F(cZTDeclaranteTest, ANewDeclarantGetsAKeyAndAnExistingOneKeepsIt) {
    const qint32 csde = Guardado();
    EXPECT_GT(csde, 0);
    oDeclarante().Nombre = u"OTRO NOMBRE"_s;
    EXPECT_EQ(oDeclarante().GuardarDeclarante(), csde);
    // The key of the record does not matter for a new one.
    oDeclarante().Modo = cZTDeclarante::kModoNuevo;
    const qint32 otra = oDeclarante().GuardarDeclarante();
    EXPECT_GT(otra, 0);
    EXPECT_NE(otra, csde);
}

TEST_F(cZTDeclaranteTest, SavingClearsModificadoOfTheSharedInstance) {
    Bueno().Modificado = true;
    cZTDeclarante copia = oDeclarante();
    EXPECT_GT(copia.GuardarDeclarante(), 0);
    EXPECT_FALSE(oDeclarante().Modificado);
    EXPECT_TRUE(copia.Modificado);
}

TEST_F(cZTDeclaranteTest, DeletingTakesTheDeclarantOfTheRecordAway) {
    const qint32 csde = Guardado();
    EXPECT_EQ(cZTDeclarante::NifRepetido(u"12345678Z"_s), csde);
    oDeclarante().EliminarDeclarante();
    EXPECT_EQ(cZTDeclarante::NifRepetido(u"12345678Z"_s), 0);
}

TEST_F(cZTDeclaranteTest, TellsWhetherTheDeclarantHasDeclarationsAndEstablishments) {
    const qint32 csde = Guardado();
    EXPECT_FALSE(oDeclarante().TieneDeclaraciones());
    EXPECT_FALSE(oDeclarante().TieneEstablecimientos());

    svrZELT::cZTEstablecimientos establecimientos;
    establecimientos.mdbmod = Entorno().mdbmod;
    establecimientos.GuardaEstablecimiento(RegistroDeEstablecimiento(csde, u"20ES123Y"_s));
    EXPECT_FALSE(oDeclarante().TieneDeclaraciones());
    EXPECT_TRUE(oDeclarante().TieneEstablecimientos());

    svrZELT::cZTDeclaraciones declaraciones;
    declaraciones.mdbmod = Entorno().mdbmod;
    (void)declaraciones.GuardarDeclaraciones({csde, qint16{2007}, qint16{1}, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0});
    EXPECT_TRUE(oDeclarante().TieneDeclaraciones());

    oDeclarante().CSDE = csde + 1;
    EXPECT_FALSE(oDeclarante().TieneDeclaraciones());
    EXPECT_FALSE(oDeclarante().TieneEstablecimientos());
}

TEST_F(cZTDeclaranteTest, ACompleteNewDeclarantPasses) {
    Bueno();
    EXPECT_EQ(Faltas(), Codigos{});
    EXPECT_TRUE(pantalla.errores.empty());
}

TEST_F(cZTDeclaranteTest, EachMissingOrWrongFieldIsOneLineInItsPlaceOfTheList) {
    const auto falta = [this](qint16 codigo, qint16 orden) {
        EXPECT_EQ(Faltas(), Codigos{codigo});
        EXPECT_EQ(Orden(0), orden);
    };
    Bueno().NIF = u"12345678A"_s;
    falta(0, 1);
    Bueno().Nombre.clear();
    falta(1, 7);
    Bueno().Domicilio.clear();
    falta(2, 8);
    Bueno().Siglas.clear();
    falta(4, 9);
    Bueno().Munici.clear();
    falta(8, 13);
    // The digits of the postal code name another province.
    Bueno().CPost = 48001;
    falta(7, 12);
}

TEST_F(cZTDeclaranteTest, EveryRuleReadsInItsPlaceOfTheListInBothLanguages) {
    Guardado(u"12345678A"_s);
    cZTDeclarante& d = Bueno();
    d.NIF = u"12345678A"_s;
    d.Nombre.clear();
    d.Domicilio.clear();
    d.Siglas.clear();
    d.Provin = 0;
    d.CPost = 0;
    d.Munici.clear();
    EsperarLineas({44, 52, 45, 46, 47, 52, 49, 51});
    Bueno().CPost = 48001;
    EsperarLineas({50});
    Bueno().Telepre = 943;
    oDeclarante().TelNum = 1234567;
    EsperarLineas({142});
}

TEST_F(cZTDeclaranteTest, AnEmptyNewRecordHasAllItsFaultsInTheOrderOfTheRules) {
    oDeclarante().Modo = cZTDeclarante::kModoNuevo;
    oDeclarante().InicializaDatos();
    EXPECT_EQ(Faltas(), (Codigos{0, 1, 2, 6, 7, 8}));
}

TEST_F(cZTDeclaranteTest, TheNifOfAnotherDeclarantIsRefusedInANewOne) {
    Guardado();
    Bueno();
    EXPECT_EQ(Faltas(), Codigos{3});
    EXPECT_EQ(Orden(0), 6);
}

TEST_F(cZTDeclaranteTest, AnExistingDeclarantMayTakeTheNifOfAnother) {
    Guardado(u"12345678Z"_s);
    Guardado(u"87654321X"_s);
    oDeclarante().NIF = u"12345678Z"_s;
    EXPECT_EQ(Faltas(), Codigos{});
}

TEST_F(cZTDeclaranteTest, TheRuleOfTheRepeatedNifLooksAtTheSharedInstance) {
    Guardado(u"12345678Z"_s);
    Bueno().NIF = u"87654321X"_s;
    cZTDeclarante otro = oDeclarante();
    otro.NIF = u"12345678Z"_s;
    EXPECT_TRUE(otro.ValidarDatos());
}

TEST_F(cZTDeclaranteTest, AMissingProvinceIsToldWithTheCodeOfTheRepeatedNif) {
    Bueno().Provin = 0;
    // The postal code does not agree with province 0 either.
    EXPECT_EQ(Faltas(), (Codigos{3, 7}));
    EXPECT_EQ(Orden(0), 10);
}

TEST_F(cZTDeclaranteTest, ThePostalCodeIsComparedWithItsFiveDigitsAndTheProvinceWithTwo) {
    Bueno().CPost = 20001;
    EXPECT_EQ(Faltas(), Codigos{});
    Bueno().CPost = 1001;
    oDeclarante().Provin = 1;
    EXPECT_EQ(Faltas(), Codigos{});
    oDeclarante().Provin = 10;
    EXPECT_EQ(Faltas(), Codigos{7});
}

TEST_F(cZTDeclaranteTest, APostalCodeOf0AlsoDisagreesWithTheProvince) {
    Bueno().CPost = 0;
    EXPECT_EQ(Faltas(), (Codigos{6, 7}));
    EXPECT_EQ(Orden(0), 11);
    EXPECT_EQ(Orden(1), 12);
}

TEST_F(cZTDeclaranteTest, APostalCodeOf0AgreesWithAMissingProvince) {
    Bueno().CPost = 0;
    oDeclarante().Provin = 0;
    EXPECT_EQ(Faltas(), (Codigos{3, 6}));
}

TEST_F(cZTDeclaranteTest, APrefixOfThreeDigitsTakesSixDigitsOfNumberAndAShorterOneSeven) {
    const auto faltas = [this](qint16 prefijo, qint32 numero) {
        Bueno().Telepre = prefijo;
        oDeclarante().TelNum = numero;
        return Faltas();
    };
    EXPECT_EQ(faltas(943, 1234567), Codigos{18});
    EXPECT_EQ(Orden(0), 9);
    EXPECT_EQ(faltas(943, 123456), Codigos{});
    EXPECT_EQ(faltas(94, 1234567), Codigos{});
    EXPECT_EQ(faltas(0, 1234567), Codigos{});
    EXPECT_EQ(faltas(100, 1000000), Codigos{18});
    EXPECT_EQ(faltas(99, 9999999), Codigos{});
    EXPECT_EQ(faltas(999, 999999), Codigos{});
}

TEST_F(cZTDeclaranteTest, ATelephoneFaultAfterAnotherOneEndsInTheErrorDialog) {
    Bueno().Telepre = 943;
    oDeclarante().TelNum = 1234567;
    oDeclarante().Nombre.clear();
    EXPECT_FALSE(oDeclarante().ValidarDatos());
    EXPECT_TRUE(pantalla.listas.empty());
    EXPECT_EQ(ErrorUnico().evento, u"cDeclarante.ValidarDatos"_s);
    EXPECT_EQ(ErrorUnico().descripcion,
              u"cDeclarante.ValidarDatos\r\n"_s + TextoDeError(NumError::Subindice));
}

TEST_F(cZTDeclaranteTest, FailuresOfTheStoreAreReportedAndGiveTheZeroValue) {
    Guardado();
    PerderElAlmacen();
    const auto informa = [this](const QString& nombre) {
        ASSERT_EQ(pantalla.errores.size(), 1U);
        EXPECT_EQ(ErrorUnico().evento, nombre);
        EXPECT_TRUE(ErrorUnico().descripcion.startsWith(nombre + u"\r\n"_s));
        EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
        pantalla.errores.clear();
    };
    oDeclarante().Modificado = true;
    EXPECT_EQ(oDeclarante().GuardarDeclarante(), 0);
    EXPECT_TRUE(oDeclarante().Modificado);
    informa(u"cDeclarante.GuardarDeclarante"_s);
    oDeclarante().CargarDeclarante(1);
    informa(u"cDeclarante.CargarDeclarante"_s);
    EXPECT_EQ(oDeclarante().NIF, u"12345678Z"_s);
    oDeclarante().EliminarDeclarante();
    informa(u"cDeclarante.EliminarDeclarante"_s);
    EXPECT_FALSE(oDeclarante().TieneDeclaraciones());
    informa(u"cDeclarante.TieneDeclaraciones"_s);
    EXPECT_FALSE(oDeclarante().TieneEstablecimientos());
    informa(u"cDeclarante.TieneEstablecimientos"_s);
}

TEST_F(cZTDeclaranteTest, AFailureOfTheNifLookUpClimbsToTheValidation) {
    Bueno();
    PerderElAlmacen();
    EXPECT_NE(NumeroDelError([] { (void)cZTDeclarante::NifRepetido(u"12345678Z"_s); }), 0);
    EXPECT_TRUE(pantalla.errores.empty());
    EXPECT_FALSE(oDeclarante().ValidarDatos());
    EXPECT_EQ(ErrorUnico().evento, u"cDeclarante.ValidarDatos"_s);
    EXPECT_TRUE(pantalla.listas.empty());
}

TEST_F(cZTDeclaranteTest, AFailureToLoadIsReportedOnceAndInitializingGoesOn) {
    Guardado();
    PerderElAlmacen();
    oDeclarante().Modificado = true;
    oDeclarante().InicializaDatos();
    EXPECT_EQ(ErrorUnico().evento, u"cDeclarante.CargarDeclarante"_s);
    EXPECT_FALSE(oDeclarante().Modificado);
}

TEST_F(cZTDeclaranteTest, ASaveOverWhatAnotherProgramHasChangedIsToldAndKeepsWhatWasTyped) {
    const qint32 clave = Guardado();
    cZTDeclarante deOtro;
    deOtro.CSDE = clave;
    deOtro.CargarDeclarante(clave);
    deOtro.Nombre = u"NOMBRE DE OTRO"_s;
    EXPECT_EQ(deOtro.GuardarDeclarante(), clave);
    oDeclarante().Domicilio = u"CALLE NUEVA"_s;
    oDeclarante().Modificado = true;
    EXPECT_EQ(oDeclarante().GuardarDeclarante(), 0);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes.front().texto, TextoPropio(u"cambio_declarante"));
    EXPECT_TRUE(pantalla.mensajes.front().unBoton);
    EXPECT_TRUE(pantalla.errores.empty());
    EXPECT_TRUE(oDeclarante().Modificado);
    EXPECT_EQ(oDeclarante().Domicilio, u"CALLE NUEVA"_s);
    cZTDeclarante guardado;
    guardado.CargarDeclarante(clave);
    EXPECT_EQ(guardado.Nombre, u"NOMBRE DE OTRO"_s);
    EXPECT_NE(guardado.Domicilio, u"CALLE NUEVA"_s);
}

TEST_F(cZTDeclaranteTest, AfterLoadingAgainWhatAnotherProgramHasChangedCanBeSavedOver) {
    const qint32 clave = Guardado();
    cZTDeclarante deOtro;
    deOtro.CSDE = clave;
    deOtro.CargarDeclarante(clave);
    deOtro.Nombre = u"NOMBRE DE OTRO"_s;
    EXPECT_EQ(deOtro.GuardarDeclarante(), clave);
    oDeclarante().CargarDeclarante(clave);
    for (const QString& calle : {u"CALLE NUEVA"_s, u"PLAZA NUEVA"_s}) {
        oDeclarante().Domicilio = calle;
        EXPECT_EQ(oDeclarante().GuardarDeclarante(), clave);
    }
    EXPECT_TRUE(pantalla.mensajes.empty());
}
