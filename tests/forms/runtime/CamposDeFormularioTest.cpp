#include "forms/runtime/CamposDeFormulario.h"

#include <QLineEdit>
#include <QPushButton>

#include "core/records/cZTDeclarante.h"
#include "core/records/cZTEstablecimientos.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class CamposDeFormularioTest : public PruebaDeFormularios {
  protected:
    QLineEdit& Caja(const QString& nombre, const QString& tag, const QString& texto) {
        auto* caja = new QLineEdit(texto, &formulario);
        caja->setObjectName(nombre);
        caja->setProperty("Tag", tag);
        return *caja;
    }

    void Comparar(qint16 modo) {
        CompararCampos(modo, formulario, [this] { ++presentaciones; });
    }

    QWidget formulario;
    /// Runs of `PresentaBotones`.
    int presentaciones = 0;
};

/// A form with the boxes that the municipality rule looks for by name.
class ActivarMunicipioTest : public CamposDeFormularioTest {
  protected:
    ActivarMunicipioTest()
        : txtProvin(Caja(u"txtProvin"_s, {}, {})),
          txtMuni(Caja(u"txtMuni"_s, {}, {})),
          txtNombreMunicipio(Caja(u"txtNombreMunicipio"_s, {}, {})),
          picMuni(&formulario) {
        picMuni.setObjectName(u"picMuni"_s);
    }

    static QRgb Fondo(const QLineEdit& caja) {
        const QPalette& paleta = caja.palette();
        EXPECT_EQ(paleta.color(QPalette::Active, QPalette::Base),
                  paleta.color(QPalette::Disabled, QPalette::Base));
        EXPECT_EQ(paleta.color(QPalette::Active, QPalette::Text), QColor(Qt::black));
        EXPECT_EQ(paleta.color(QPalette::Disabled, QPalette::Text), QColor(Qt::black));
        return paleta.color(QPalette::Base).rgb();
    }

    void Activar(const QString& provincia) {
        txtProvin.setText(provincia);
        ActivarMunicipio(formulario);
    }

    QLineEdit& txtProvin;
    QLineEdit& txtMuni;
    QLineEdit& txtNombreMunicipio;
    QPushButton picMuni;
};

}  // namespace

TEST_F(CamposDeFormularioTest, TheBoxesGoToTheRecordInCapitals) {
    Caja(u"txtNombre"_s, u"Nombre"_s, u"uno sl"_s);
    Caja(u"txtCPost"_s, u"CPost"_s, u"20001"_s);
    Comparar(0);
    EXPECT_EQ(oDeclarante().Nombre, u"UNO SL"_s);
    EXPECT_EQ(oDeclarante().CPost, 20001);
}

TEST_F(CamposDeFormularioTest, ADifferenceMarksTheDeclarantAndPresentsTheButtonsEachTime) {
    Caja(u"txtNombre"_s, u"Nombre"_s, u"UNO"_s);
    Caja(u"txtNIF"_s, u"NIF"_s, u"12345678Z"_s);
    Caja(u"txtPiso"_s, u"Piso"_s, QString());
    Comparar(0);
    EXPECT_TRUE(oDeclarante().Modificado);
    EXPECT_FALSE(oEstablecimientos().Modificado);
    EXPECT_EQ(presentaciones, 2);
}

TEST_F(CamposDeFormularioTest, NoDifferenceMarksNothing) {
    oDeclarante().Nombre = u"UNO"_s;
    oDeclarante().Numero = 5;
    Caja(u"txtNombre"_s, u"Nombre"_s, u"uno"_s);
    Caja(u"txtNumero"_s, u"Numero"_s, u"5"_s);
    Caja(u"txtTelPre"_s, u"TELPRE"_s, QString());
    Comparar(0);
    EXPECT_FALSE(oDeclarante().Modificado);
    EXPECT_EQ(presentaciones, 0);
}

TEST_F(CamposDeFormularioTest, BlanksAroundAreNoDifferenceThoughTheyAreStored) {
    oDeclarante().Nombre = u"UNO"_s;
    Caja(u"txtNombre"_s, u"Nombre"_s, u" UNO "_s);
    Comparar(0);
    EXPECT_FALSE(oDeclarante().Modificado);
    EXPECT_EQ(oDeclarante().Nombre, u" UNO "_s);
}

TEST_F(CamposDeFormularioTest, ANumberIsComparedAsItsText) {
    // A code shown with its zeros differs from the number of the record at each comparison.
    oDeclarante().CPost = 1001;
    Caja(u"txtCPost"_s, u"CPost"_s, u"01001"_s);
    Comparar(0);
    EXPECT_TRUE(oDeclarante().Modificado);
    EXPECT_EQ(oDeclarante().CPost, 1001);
}

TEST_F(CamposDeFormularioTest, AnUnknownFieldIsNoDifferenceInTheDeclarant) {
    Caja(u"txtNombreProv"_s, QString(), u"ONDARZIA"_s);
    Comparar(0);
    EXPECT_FALSE(oDeclarante().Modificado);
}

TEST_F(CamposDeFormularioTest, Mode2MarksTheEstablishmentAlone) {
    Caja(u"txtCIM"_s, u"Cim"_s, u"20es123y"_s);
    Comparar(2);
    EXPECT_EQ(oEstablecimientos().CIM, u"20ES123Y"_s);
    EXPECT_TRUE(oEstablecimientos().Modificado);
    EXPECT_FALSE(oDeclarante().Modificado);
    EXPECT_EQ(presentaciones, 0);
}

TEST_F(CamposDeFormularioTest, AnUnknownFieldWithATextIsADifferenceInTheEstablishment) {
    QLineEdit& caja = Caja(u"txtNombreProv"_s, QString(), QString());
    Comparar(2);
    EXPECT_FALSE(oEstablecimientos().Modificado);
    caja.setText(u"ONDARZIA"_s);
    Comparar(2);
    EXPECT_TRUE(oEstablecimientos().Modificado);
}

TEST_F(CamposDeFormularioTest, AnyOtherModeChangesNothing) {
    Caja(u"txtNombre"_s, u"Nombre"_s, u"UNO"_s);
    Caja(u"cnuExento1"_s, QString(), u"5"_s);
    Comparar(1);
    EXPECT_EQ(oDeclarante().Nombre, QString());
    EXPECT_FALSE(oDeclarante().Modificado);
    EXPECT_FALSE(oEstablecimientos().Modificado);
    EXPECT_EQ(presentaciones, 0);
}

TEST_F(CamposDeFormularioTest, ANumericBoxIsComparedWithTheFormerValueOfTheTextBoxBeforeIt) {
    oDeclarante().Nombre = u"7"_s;
    Caja(u"txtNombre"_s, u"Nombre"_s, u"7"_s);
    QLineEdit& caja = Caja(u"cnuExento1"_s, u"NIF"_s, u"7"_s);
    Comparar(0);
    EXPECT_FALSE(oDeclarante().Modificado);
    caja.setText(u"8"_s);
    Comparar(0);
    EXPECT_TRUE(oDeclarante().Modificado);
    EXPECT_EQ(oDeclarante().NIF, QString());
}

TEST_F(CamposDeFormularioTest, OtherControlsAreLeftAlone) {
    Caja(u"otraNombre"_s, u"Nombre"_s, u"UNO"_s);
    Comparar(0);
    EXPECT_EQ(oDeclarante().Nombre, QString());
    EXPECT_FALSE(oDeclarante().Modificado);
}

TEST_F(ActivarMunicipioTest, InAnotherProvinceTheNameIsTyped) {
    txtMuni.setText(u"05"_s);
    txtNombreMunicipio.setText(u"HIRI"_s);
    oDeclarante().CMuni = 5;
    Activar(u"48"_s);
    EXPECT_TRUE(txtNombreMunicipio.isEnabled());
    EXPECT_EQ(Fondo(txtNombreMunicipio), 0xFFFFFFFFU);
    EXPECT_FALSE(txtMuni.isEnabled());
    EXPECT_EQ(Fondo(txtMuni), 0xFFFFFFC0U);
    EXPECT_FALSE(picMuni.isEnabled());
    EXPECT_EQ(txtMuni.text(), QString());
    EXPECT_EQ(txtNombreMunicipio.text(), u"HIRI"_s);
    EXPECT_EQ(oDeclarante().CMuni, 0);
}

TEST_F(ActivarMunicipioTest, InTheProvinceOfTheAuthorityTheNameComesFromTheList) {
    Activar(u"48"_s);
    txtMuni.setText(u"05"_s);
    txtNombreMunicipio.setText(u"HIRI"_s);
    oDeclarante().CMuni = 5;
    Activar(u"20"_s);
    EXPECT_FALSE(txtNombreMunicipio.isEnabled());
    EXPECT_EQ(Fondo(txtNombreMunicipio), 0xFFFFFFC0U);
    EXPECT_TRUE(txtMuni.isEnabled());
    EXPECT_EQ(Fondo(txtMuni), 0xFFFFFFFFU);
    EXPECT_TRUE(picMuni.isEnabled());
    EXPECT_EQ(txtMuni.text(), u"05"_s);
    EXPECT_EQ(txtNombreMunicipio.text(), u"HIRI"_s);
    EXPECT_EQ(oDeclarante().CMuni, 5);
}

TEST_F(ActivarMunicipioTest, WithoutACodeThereIsNoNameInTheProvinceOfTheAuthority) {
    txtNombreMunicipio.setText(u"BILBAO"_s);
    Activar(u"20"_s);
    EXPECT_EQ(txtNombreMunicipio.text(), QString());
}

TEST_F(ActivarMunicipioTest, TheProvinceIsComparedAsANumberAndNothingIsAnotherProvince) {
    Activar(u"020"_s);
    EXPECT_TRUE(txtMuni.isEnabled());
    Activar(QString());
    EXPECT_FALSE(txtMuni.isEnabled());
    EXPECT_TRUE(txtNombreMunicipio.isEnabled());
}

TEST_F(ActivarMunicipioTest, TheCodeOfTheEstablishmentStays) {
    oEstablecimientos().CMuni = 5;
    Activar(u"48"_s);
    EXPECT_EQ(oEstablecimientos().CMuni, 5);
}
