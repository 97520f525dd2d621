#include "forms/runtime/ParDeBotones.h"

#include <QTest>

#include "forms/runtime/Formulario.h"
#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/BotonZT.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class ParDeBotonesTest : public PruebaDeFormularios {
  protected:
    struct frmPar : FormularioTrabajo {
        frmPar() : FormularioTrabajo(u"frmPar") {}
        BotonZT* boton = new BotonZT(this);
        BotonImagen* imagen = new BotonImagen(this);
        int ordenes = 0;
        ParDeBotones par{*this, *boton, *imagen, {Imagen16::Aceptar, Id::Aceptar}, [this] { ++ordenes; }};
    };

    bool Muestra(int numero) const {
        return formulario.imagen->icon().pixmap(16, 16).toImage() ==
               ilsMDI16(numero).pixmap(16, 16).toImage();
    }

    frmPar formulario;
};

}  // namespace

TEST_F(ParDeBotonesTest, ButtonAndPictureRunTheSameCommand) {
    formulario.boton->click();
    QTest::mouseClick(formulario.imagen, Qt::LeftButton);
    EXPECT_EQ(formulario.ordenes, 2);
}

TEST_F(ParDeBotonesTest, ThePictureRunsTheCommandOfADisabledButton) {
    formulario.par.HabilitarBoton(false);
    formulario.boton->click();
    EXPECT_EQ(formulario.ordenes, 0);
    QTest::mouseClick(formulario.imagen, Qt::LeftButton);
    EXPECT_EQ(formulario.ordenes, 1);
    EXPECT_TRUE(Muestra(14));
}

TEST_F(ParDeBotonesTest, ADisabledPairIsGreyAndDoesNothing) {
    EXPECT_TRUE(Muestra(6));
    formulario.par.Habilitar(false);
    EXPECT_TRUE(Muestra(14));
    EXPECT_FALSE(formulario.boton->isEnabled());
    QTest::mouseClick(formulario.imagen, Qt::LeftButton);
    EXPECT_EQ(formulario.ordenes, 0);
    formulario.par.Habilitar(true);
    EXPECT_TRUE(Muestra(6));
    EXPECT_TRUE(formulario.boton->isEnabled());
    QTest::mouseClick(formulario.imagen, Qt::LeftButton);
    EXPECT_EQ(formulario.ordenes, 1);
}

TEST_F(ParDeBotonesTest, ThePictureIsNamedAfterTheTextWithoutItsAccessKeyAndBlanks) {
    formulario.par.PonerTexto();
    EXPECT_EQ(formulario.boton->text(), Texto(28));
    formulario.par.PonerTexto(u"   &Ados "_s);
    EXPECT_EQ(formulario.boton->text(), u"   &Ados "_s);
    EXPECT_EQ(formulario.imagen->accessibleName(), u"Ados"_s);
    EXPECT_EQ(formulario.imagen->toolTip(), u"Ados"_s);
}

TEST_F(ParDeBotonesTest, AnotherLookIsAnotherPictureWithItsTwinAndAnotherText) {
    formulario.par.Tomar({Imagen16::Borrar, Id::Borrar});
    EXPECT_TRUE(Muestra(9));
    formulario.par.Habilitar(false);
    EXPECT_TRUE(Muestra(15));
    formulario.par.PonerTexto();
    EXPECT_EQ(formulario.boton->text(), Texto(30));
}
