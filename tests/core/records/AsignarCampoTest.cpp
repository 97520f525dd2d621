#include "core/records/AsignarCampo.h"

#include "core/records/cZTDeclarante.h"
#include "core/records/cZTEstablecimientos.h"
#include "tests/support/EntornoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class AsignarCampoTest : public EntornoDePrueba {
  protected:
    /// A text field stores what comes and gives what was there.
    static void EsTexto(qint16 modo, const QString& campo, const QString& propiedad) {
        AsignarCampo(modo, campo, u"antes"_s);
        EXPECT_EQ(propiedad, u"antes"_s) << campo.toStdString();
        EXPECT_EQ(AsignarCampo(modo, campo, u" 0 "_s), Valor(u"antes"_s)) << campo.toStdString();
        EXPECT_EQ(propiedad, u" 0 "_s) << campo.toStdString();
    }

    /// A number field stores nothing as 0, and gives 0 as nothing.
    template <class Entero>
    static void EsNumero(qint16 modo, const QString& campo, const Entero& propiedad) {
        AsignarCampo(modo, campo, u"7"_s);
        EXPECT_EQ(propiedad, 7) << campo.toStdString();
        EXPECT_EQ(AsignarCampo(modo, campo, QString()), Valor(Entero{7})) << campo.toStdString();
        EXPECT_EQ(propiedad, 0) << campo.toStdString();
        EXPECT_EQ(AsignarCampo(modo, campo, u"0012"_s), Valor(QString())) << campo.toStdString();
        EXPECT_EQ(propiedad, 12) << campo.toStdString();
    }
};

}  // namespace

TEST_F(AsignarCampoTest, Mode0ReachesTheTextsOfTheDeclarant) {
    const cZTDeclarante& d = oDeclarante();
    EsTexto(0, u"NOMBRE"_s, d.Nombre);
    EsTexto(0, u"NIF"_s, d.NIF);
    EsTexto(0, u"SIGLAS"_s, d.Siglas);
    EsTexto(0, u"DOMICILIO"_s, d.Domicilio);
    EsTexto(0, u"LETRA"_s, d.Letra);
    EsTexto(0, u"MANO"_s, d.Mano);
    EsTexto(0, u"ESCAL"_s, d.Escal);
    EsTexto(0, u"PISO"_s, d.Piso);
    EsTexto(0, u"MUNICI"_s, d.Munici);
}

TEST_F(AsignarCampoTest, Mode0ReachesTheNumbersOfTheDeclarant) {
    const cZTDeclarante& d = oDeclarante();
    EsNumero(0, u"NUMERO"_s, d.Numero);
    EsNumero(0, u"PROVIN"_s, d.Provin);
    EsNumero(0, u"CODMUN"_s, d.CMuni);
    EsNumero(0, u"CPOST"_s, d.CPost);
    EsNumero(0, u"TELPRE"_s, d.Telepre);
    EsNumero(0, u"TELNUM"_s, d.TelNum);
}

TEST_F(AsignarCampoTest, Mode2ReachesTheEstablishmentAndLeavesTheDeclarant) {
    const cZTEstablecimientos& e = oEstablecimientos();
    EsTexto(2, u"CIM"_s, e.CIM);
    EsTexto(2, u"DOMICILIO"_s, e.Domicilio);
    EsNumero(2, u"PROVIN"_s, e.Provin);
    EsNumero(2, u"CODMUN"_s, e.CMuni);
    EsTexto(2, u"MUNICI"_s, e.Munici);
    EXPECT_EQ(oDeclarante().Domicilio, QString());
    EXPECT_EQ(oDeclarante().Provin, 0);
}

TEST_F(AsignarCampoTest, AnUnknownFieldOfTheDeclarantGivesTheNewValueBack) {
    oDeclarante().Nombre = u"UNO"_s;
    EXPECT_EQ(AsignarCampo(0, u"CIM"_s, u"X"_s), Valor(u"X"_s));
    EXPECT_EQ(AsignarCampo(0, u"Nombre"_s, u"X"_s), Valor(u"X"_s));
    EXPECT_EQ(AsignarCampo(0, QString(), u"X"_s), Valor(u"X"_s));
    EXPECT_EQ(oDeclarante().Nombre, u"UNO"_s);
}

TEST_F(AsignarCampoTest, AnUnknownFieldOfTheEstablishmentHasAnEmptyFormerValue) {
    EXPECT_EQ(AsignarCampo(2, u"NIF"_s, u"X"_s), Valor());
    EXPECT_EQ(AsignarCampo(2, QString(), u"X"_s), Valor());
    EXPECT_EQ(oEstablecimientos().CIM, QString());
}

TEST_F(AsignarCampoTest, AnyOtherModeDoesNothing) {
    AsignarCampo(1, u"NIF"_s, u"X"_s);
    AsignarCampo(3, u"CIM"_s, u"X"_s);
    EXPECT_EQ(oDeclarante().NIF, QString());
    EXPECT_EQ(oEstablecimientos().CIM, QString());
}

TEST_F(AsignarCampoTest, ATextThatIsNoNumberOrDoesNotFitIsRefusedAndChangesNothing) {
    oDeclarante().Numero = 5;
    oDeclarante().Provin = 20;
    EXPECT_EQ(NumeroDelError([] { AsignarCampo(0, u"NUMERO"_s, u"1A"_s); }), 13);
    EXPECT_EQ(NumeroDelError([] { AsignarCampo(0, u"PROVIN"_s, u"40000"_s); }), 6);
    EXPECT_EQ(oDeclarante().Numero, 5);
    EXPECT_EQ(oDeclarante().Provin, 20);
}
