#include "core/records/cZTEstablecimientos.h"

#include <rapidcheck.h>

#include "core/records/cZTDeclarante.h"
#include "core/records/cZTListaDeclaraciones.h"
#include "core/run/Textos.h"
#include "core/services/svrZELT/cZTAnexos.h"
#include "core/services/svrZELT/cZTDeclaraciones.h"
#include "tests/support/AlmacenRapido.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/Generadores.h"
#include "tests/support/LineasEsperadas.h"

using namespace Qt::StringLiterals;

namespace {

using Codigos = std::vector<qint16>;

class cZTEstablecimientosTest : public EntornoDePrueba {
  protected:
    void SetUp() override {
        EntornoDePrueba::SetUp();
        oDeclarante().CSDE = NuevoDeclarante();
        Bueno();
    }

    static qint32 NuevoDeclarante() {
        cZTDeclarante d;
        d.Modo = cZTDeclarante::kModoNuevo;
        d.NIF = u"12345678Z"_s;
        return d.GuardarDeclarante();
    }

    /// Fills the shared record with a new establishment that passes every rule.
    static cZTEstablecimientos& Bueno() {
        cZTEstablecimientos& e = oEstablecimientos();
        e.Modo = cZTEstablecimientos::kModoNuevo;
        e.InicializarDatos();
        e.CIM = u"20ES123Y"_s;
        e.Domicilio = u"PUERTO 1"_s;
        e.Provin = 20;
        e.CMuni = 1;
        e.Munici = u"HIRI"_s;
        return e;
    }

    static qint32 Guardado() {
        Bueno().GuardaEstablecimiento();
        oEstablecimientos().Modo = cZTEstablecimientos::kModoExistente;
        return oEstablecimientos().CSES;
    }

    static qint32 NuevaDeclaracion(qint16 periodo) {
        svrZELT::cZTDeclaraciones servidor;
        servidor.mdbmod = Entorno().mdbmod;
        return servidor.GuardarDeclaraciones(
            {oDeclarante().CSDE, qint16{2007}, periodo, 0.0, 0.0, 0.0, 0.0, 0.0, 0.0});
    }

    Codigos Faltas() {
        pantalla.listas.clear();
        const bool valido = oEstablecimientos().ValidarDatos();
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

    /// Display order of the fault that stands in row `i` of the list that came up.
    [[nodiscard]] qint16 Orden(int i) const { return pantalla.listas.at(0)(0, i).aEntero16(); }

    /// Expects that one failure was reported, under that name, and forgets it.
    void Informa(const QString& nombre) {
        ASSERT_EQ(pantalla.errores.size(), 1U);
        EXPECT_EQ(pantalla.errores.front().evento, nombre);
        EXPECT_TRUE(pantalla.errores.front().descripcion.startsWith(nombre + u"\r\n"_s));
        pantalla.errores.clear();
    }
};

}  // namespace

TEST_F(cZTEstablecimientosTest, ANewRecordIsBlankAndBelongsToTheOpenDeclarant) {
    cZTEstablecimientos& e = Bueno();
    e.CSDE = 99;
    e.Modificado = true;
    e.Procedencia = 4;
    e.SelCSES = 5;
    e.CSES = 6;
    e.InicializarDatos();
    EXPECT_EQ(e.CSDE, oDeclarante().CSDE);
    EXPECT_EQ(e.CIM, QString());
    EXPECT_EQ(e.Domicilio, QString());
    EXPECT_EQ(e.Provin, 0);
    EXPECT_EQ(e.CMuni, 0);
    EXPECT_EQ(e.Munici, QString());
    EXPECT_FALSE(e.Modificado);
    EXPECT_EQ(e.Procedencia, 4);
    EXPECT_EQ(e.SelCSES, 5);
    EXPECT_EQ(e.CSES, 6);
}

TEST_F(cZTEstablecimientosTest, AnyOtherModoLoadsTheEstablishmentOfCSESAndLeavesModificado) {
    const qint32 cses = Guardado();
    for (const qint32 modo : {0, 1, 7}) {
        cZTEstablecimientos e;
        e.CSES = cses;
        e.Modo = modo;
        e.Modificado = true;
        e.InicializarDatos();
        EXPECT_EQ(e.CIM, u"20ES123Y"_s);
        EXPECT_EQ(e.Domicilio, u"PUERTO 1"_s);
        EXPECT_EQ(e.CSDE, oDeclarante().CSDE);
        EXPECT_TRUE(e.Modificado);
    }
}

TEST_F(cZTEstablecimientosTest, EveryFieldComesBackFromTheStore) {
    NoEsperarAlDisco();
    EXPECT_TRUE(rc::check("an establishment is loaded as it was stored", [] {
        cZTEstablecimientos e;
        e.Modo = cZTEstablecimientos::kModoNuevo;
        e.InicializarDatos();
        e.CIM = *TextoEnMayusculas(8);
        e.Domicilio = *TextoEnMayusculas(40);
        e.Provin = *rc::gen::arbitrary<qint16>();
        e.CMuni = *rc::gen::arbitrary<qint16>();
        e.Munici = *TextoEnMayusculas(12);
        e.GuardaEstablecimiento();

        cZTEstablecimientos leido;
        leido.CSES = e.CSES;
        leido.InicializarDatos();
        RC_ASSERT(e.CSES > 0);
        RC_ASSERT(leido.CIM == e.CIM);
        RC_ASSERT(leido.Domicilio == e.Domicilio);
        RC_ASSERT(leido.Provin == e.Provin);
        RC_ASSERT(leido.CMuni == e.CMuni);
        RC_ASSERT(leido.Munici == e.Munici);
    }));
}

TEST_F(cZTEstablecimientosTest, OnlyTheCimIsTurnedIntoCapitalsOnLoading) {
    Bueno().CIM = u"20es123y"_s;
    oEstablecimientos().Domicilio = u"Puerto 1"_s;
    oEstablecimientos().Munici = u"Hiri"_s;
    oEstablecimientos().GuardaEstablecimiento();
    oEstablecimientos().Modo = cZTEstablecimientos::kModoExistente;
    oEstablecimientos().InicializarDatos();
    EXPECT_EQ(oEstablecimientos().CIM, u"20ES123Y"_s);
    EXPECT_EQ(oEstablecimientos().Domicilio, u"Puerto 1"_s);
    EXPECT_EQ(oEstablecimientos().Munici, u"Hiri"_s);
}

TEST_F(cZTEstablecimientosTest, ANewEstablishmentGetsItsKeyAndAnExistingOneIsChangedInPlace) {
    const qint32 cses = Guardado();
    EXPECT_GT(cses, 0);
    oEstablecimientos().Domicilio = u"PUERTO 2"_s;
    oEstablecimientos().GuardaEstablecimiento();
    EXPECT_EQ(oEstablecimientos().CSES, cses);
    oEstablecimientos().RellenarEstablecimientos();
    ASSERT_EQ(oEstablecimientos().BufferEstablecimientos.UltimaFila(), 1);
    EXPECT_EQ(oEstablecimientos().BufferEstablecimientos(2, 1), Valor(u"PUERTO 2"_s));
}

TEST_F(cZTEstablecimientosTest, SavingClearsModificadoOfTheSharedInstance) {
    Bueno().Modificado = true;
    cZTEstablecimientos copia = oEstablecimientos();
    copia.GuardaEstablecimiento();
    EXPECT_FALSE(oEstablecimientos().Modificado);
    EXPECT_TRUE(copia.Modificado);
}

TEST_F(cZTEstablecimientosTest, TheListHoldsTheEstablishmentsOfTheOpenDeclarantInRowsFrom1) {
    oEstablecimientos().RellenarEstablecimientos();
    EXPECT_TRUE(oEstablecimientos().BufferEstablecimientos.EsNula());
    const qint32 cses = Guardado();
    oEstablecimientos().RellenarEstablecimientos();
    const Tabla& lista = oEstablecimientos().BufferEstablecimientos;
    ASSERT_EQ(lista.UltimaFila(), 1);
    EXPECT_EQ(lista(0, 1), Valor(cses));
    EXPECT_EQ(lista(1, 1), Valor(u"20ES123Y"_s));
    EXPECT_EQ(lista(2, 1), Valor(u"PUERTO 1"_s));
    EXPECT_EQ(lista(3, 1), Valor(qint16{20}));
    EXPECT_EQ(lista(4, 1), Valor(qint16{1}));
    EXPECT_EQ(lista(5, 1), Valor(u"HIRI"_s));

    oDeclarante().CSDE = NuevoDeclarante();
    oEstablecimientos().RellenarEstablecimientos();
    EXPECT_TRUE(oEstablecimientos().BufferEstablecimientos.EsNula());
}

TEST_F(cZTEstablecimientosTest, DeletingKeepsTheKeyInTheSharedInstance) {
    const qint32 cses = Guardado();
    oEstablecimientos().CSES = 0;
    oEstablecimientos().EliminarEstablecimiento(cses);
    EXPECT_EQ(oEstablecimientos().CSES, cses);
    oEstablecimientos().RellenarEstablecimientos();
    EXPECT_TRUE(oEstablecimientos().BufferEstablecimientos.EsNula());
}

TEST_F(cZTEstablecimientosTest, TheDeclarationsAreCountedInTheListOfDeclarations) {
    NuevaDeclaracion(1);
    NuevaDeclaracion(2);
    oEstablecimientos().NumDecla = 7;
    oEstablecimientos().NumeroDeDeclaraciones();
    EXPECT_EQ(oListaDeclaraciones().NumDecla, 2);
    EXPECT_EQ(oEstablecimientos().NumDecla, 7);
}

TEST_F(cZTEstablecimientosTest, TellsWhetherAnEstablishmentHasAnnexes) {
    const qint32 cses = Guardado();
    EXPECT_TRUE(cZTEstablecimientos::EstablecimientosSinAnexos(cses));
    const qint32 csdc = NuevaDeclaracion(1);
    Tabla anexos(7, 1);
    anexos(2, 1) = cses;
    anexos(3, 1) = qint16{1};
    for (const int columna : {4, 5, 6, 7}) {
        anexos(columna, 1) = 100.0;
    }
    svrZELT::cZTAnexos servidor;
    servidor.mdbmod = Entorno().mdbmod;
    ASSERT_TRUE(servidor.GuardarAnexos(anexos, std::nullopt, csdc));
    EXPECT_FALSE(cZTEstablecimientos::EstablecimientosSinAnexos(cses));
    EXPECT_TRUE(cZTEstablecimientos::EstablecimientosSinAnexos(cses + 1));
}

TEST_F(cZTEstablecimientosTest, ACompleteNewEstablishmentPasses) {
    EXPECT_EQ(Faltas(), Codigos{});
    EXPECT_TRUE(pantalla.errores.empty());
}

TEST_F(cZTEstablecimientosTest, EachMissingOrWrongFieldIsOneLineInItsPlaceOfTheList) {
    const auto falta = [this](qint16 codigo, qint16 orden) {
        EXPECT_EQ(Faltas(), Codigos{codigo});
        EXPECT_EQ(Orden(0), orden);
    };
    Bueno().CIM = u"20ES123A"_s;
    falta(16, 1);
    Bueno().Domicilio.clear();
    falta(17, 3);
    Bueno().Provin = 0;
    falta(5, 4);
    Bueno().Munici.clear();
    falta(8, 5);
}

TEST_F(cZTEstablecimientosTest, AllRulesRunAndTheLengthComesFirst) {
    Guardado();
    Bueno().CIM = u"20E"_s;
    oEstablecimientos().Domicilio.clear();
    oEstablecimientos().Provin = 0;
    oEstablecimientos().Munici.clear();
    EXPECT_EQ(Faltas(), (Codigos{15, 16, 17, 5, 8}));
    EXPECT_EQ(Orden(0), 0);
    EXPECT_EQ(Orden(1), 1);
}

TEST_F(cZTEstablecimientosTest, EveryRuleReadsInItsPlaceOfTheListInBothLanguages) {
    Bueno().CIM = u"20E"_s;
    oEstablecimientos().GuardaEstablecimiento();
    Bueno().CIM = u"20E"_s;
    oEstablecimientos().Domicilio.clear();
    oEstablecimientos().Provin = 0;
    oEstablecimientos().Munici.clear();
    EXPECT_FALSE(oEstablecimientos().ValidarDatos());
    ASSERT_EQ(pantalla.listas.size(), 1U);
    for (const qint16 offset : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = offset;
        EXPECT_EQ(LineasDeErrores(pantalla.listas.front()),
                  LineasEsperadas({43, 17, 34, 12, 48, 51}, offset));
    }
}

TEST_F(cZTEstablecimientosTest, ACodeOfAnotherLengthThatChecksFailsTheLengthAlone) {
    Bueno().CIM = u"20ES123YY"_s;
    EXPECT_EQ(Faltas(), Codigos{15});
}

TEST_F(cZTEstablecimientosTest, ANewEstablishmentWithACimInUseIsRefusedWhoeverHasIt) {
    Guardado();
    oDeclarante().CSDE = NuevoDeclarante();
    Bueno();
    EXPECT_EQ(Faltas(), Codigos{14});
    EXPECT_EQ(Orden(0), 2);
}

TEST_F(cZTEstablecimientosTest, AnExistingEstablishmentMayTakeACimInUse) {
    Guardado();
    Bueno().CIM = u"20ES124F"_s;
    oEstablecimientos().GuardaEstablecimiento();
    oEstablecimientos().Modo = cZTEstablecimientos::kModoExistente;
    oEstablecimientos().CIM = u"20ES123Y"_s;
    EXPECT_EQ(Faltas(), Codigos{});
}

TEST_F(cZTEstablecimientosTest, CodesThatCannotBeConvertedEndInTheErrorDialogAndNoList) {
    for (const QString& cim : {QString(), u"2XES123Y"_s, u"20eS123Y"_s, u"20Es123Y"_s}) {
        Bueno().CIM = cim;
        EXPECT_FALSE(oEstablecimientos().ValidarDatos());
        EXPECT_TRUE(pantalla.listas.empty());
        ASSERT_EQ(pantalla.errores.size(), 1U) << cim.toStdString();
        EXPECT_EQ(pantalla.errores.front().descripcion,
                  u"cZTEstablecimientos.ValidarDatos\r\n"_s + TextoDeError(NumError::NoCoincidenTipos));
        pantalla.errores.clear();
    }
}

TEST_F(cZTEstablecimientosTest, ASmallLetterAsCheckLetterFailsTheFormatCleanly) {
    Bueno().CIM = u"20ES123y"_s;
    EXPECT_EQ(Faltas(), Codigos{16});
}

TEST_F(cZTEstablecimientosTest, FailuresOfTheStoreAreReportedAndGiveTheZeroValue) {
    const qint32 cses = Guardado();
    Entorno().mdbmod = Entorno().mdbPath + u"NoExiste.mdb"_s;
    cZTEstablecimientos& e = oEstablecimientos();

    e.RellenarEstablecimientos();
    Informa(u"cZTEstablecimientos.RellenarEstablecimientos"_s);
    e.EliminarEstablecimiento(cses);
    Informa(u"cZTEstablecimientos.EliminarEstablecimiento"_s);
    e.NumeroDeDeclaraciones();
    Informa(u"cZTEstablecimientos.NumeroDeDeclaraciones"_s);
    e.InicializarDatos();
    Informa(u"cZTEstablecimientos.CargarEstablecimiento"_s);
    e.Modificado = true;
    e.GuardaEstablecimiento();
    Informa(u"cZTEstablecimientos.GuardaEstablecimiento"_s);
    EXPECT_TRUE(e.Modificado);
    EXPECT_FALSE(cZTEstablecimientos::EstablecimientosSinAnexos(cses));
    Informa(u"cZTEstablecimientos.CargarEstablecimiento"_s);
}

TEST_F(cZTEstablecimientosTest, AFailureToLookForTheCimIsReportedAndCountsAsNotRepeated) {
    Bueno();
    Entorno().mdbmod = Entorno().mdbPath + u"NoExiste.mdb"_s;
    EXPECT_TRUE(oEstablecimientos().ValidarDatos());
    Informa(u"cZTEstablecimientos.CIMRepetido"_s);
}

TEST_F(cZTEstablecimientosTest, TheStoreIsNotAskedForTheCimOfAnExistingEstablishment) {
    Guardado();
    Entorno().mdbmod = Entorno().mdbPath + u"NoExiste.mdb"_s;
    EXPECT_TRUE(oEstablecimientos().ValidarDatos());
    EXPECT_TRUE(pantalla.errores.empty());
}

TEST_F(cZTEstablecimientosTest, ASaveOverWhatAnotherProgramHasChangedIsToldAndKeepsWhatWasTyped) {
    cZTEstablecimientos& e = oEstablecimientos();
    e.GuardaEstablecimiento();
    e.Modo = cZTEstablecimientos::kModoExistente;
    cZTEstablecimientos deOtro;
    deOtro.CSES = e.CSES;
    deOtro.InicializarDatos();
    deOtro.Domicilio = u"CALLE DE OTRO"_s;
    deOtro.GuardaEstablecimiento();
    e.Munici = u"BILBO"_s;
    e.Modificado = true;
    e.GuardaEstablecimiento();
    EXPECT_TRUE(e.Modificado);
    EXPECT_EQ(e.Munici, u"BILBO"_s);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes.front().texto, TextoPropio(u"cambio_establecimiento"));
    e.InicializarDatos();
    EXPECT_EQ(e.Domicilio, u"CALLE DE OTRO"_s);
    EXPECT_EQ(e.Munici, u"HIRI"_s);
    e.Modificado = true;
    e.GuardaEstablecimiento();
    EXPECT_FALSE(e.Modificado);
}
