// The access keys of the menus of the frame: theirs while they are on, and of the forms while they are off.

#include <QMenu>
#include <QMenuBar>

#include "core/records/cZTListaDeclaraciones.h"
#include "core/run/Textos.h"
#include "core/run/cZTFecha.h"
#include "forms/declarations/frmZTListaDeclaraciones.h"
#include "forms/runtime/Menus.h"
#include "tests/support/PruebaDeDeclarante.h"
#include "tests/support/PruebaDeEstablecimientos.h"

using namespace Qt::StringLiterals;

namespace {

class TeclasDeMenuTest : public PruebaDeDeclarante {
  protected:
    void SetUp() override {
        PruebaDeDeclarante::SetUp();
        RegistrarFormulario<frmZTListaDeclaraciones>();
    }
    void PonerEuskera() const {
        oFecha().IDI(u"E"_s);
        marco->AnadirCaptions();
    }
    void AbrirDeclaraciones() {
        oDeclarante().CSDE = Guardar();
        oDeclarante().Modo = cZTDeclarante::kModoExistente;
        oDeclarante().InicializaDatos();
        Abrir(frmZTListaDeclaraciones::kNombre);
        ASSERT_FALSE(MenusHabilitados());
    }
    [[nodiscard]] QString Titulo() const { return marco->findChild<QMenu*>(u"mnuDeclarante"_s)->title(); }
    [[nodiscard]] bool ElMenuTieneElTeclado() const {
        return marco->menuBar()->hasFocus() || marco->menuBar()->activeAction() != nullptr ||
               QApplication::activePopupWidget() != nullptr;
    }
};

}  // namespace

TEST_F(TeclasDeMenuTest, AMenuThatIsOffGivesUpItsLetterAndGetsItBack) {
    EXPECT_EQ(Titulo(), u"Dec&larante"_s);
    Deshabilitar_menu();
    EXPECT_EQ(Titulo(), u"Declarante"_s);
    Habilitar_menu();
    EXPECT_EQ(Titulo(), u"Dec&larante"_s);
}

TEST_F(TeclasDeMenuTest, AChangeOfLanguageMeanwhileGivesItsOwnLetterBack) {
    Deshabilitar_menu();
    PonerEuskera();
    EXPECT_EQ(Titulo(), u"Aitortzailea"_s);
    Habilitar_menu();
    EXPECT_EQ(Titulo(), u"&Aitortzailea"_s);
    Tecla(Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return marco->findChild<QMenu*>(u"mnuDeclarante"_s)->isVisible(); }));
    marco->findChild<QMenu*>(u"mnuDeclarante"_s)->close();
}

TEST_F(TeclasDeMenuTest, AltLReachesTheDeclarantFromTheListOfDeclarations) {
    AbrirDeclaraciones();
    Tecla(Qt::Key_L, Qt::AltModifier);
    EXPECT_TRUE(Abierto());
    EXPECT_FALSE(ElMenuTieneElTeclado());
    // Other access keys go on working.
    Tecla(Qt::Key_C, Qt::AltModifier);
    EXPECT_FALSE(Abierto());
}

TEST_F(TeclasDeMenuTest, InEuskeraAltAReachesItToo) {
    PonerEuskera();
    AbrirDeclaraciones();
    Tecla(Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(Abierto());
    EXPECT_FALSE(ElMenuTieneElTeclado());
}

TEST_F(TeclasDeMenuTest, InEuskeraAltAAcceptsOnTheDeclarantForm) {
    PonerEuskera();
    AbrirNuevo();
    EscribirUnoBueno();
    Tecla(Qt::Key_A, Qt::AltModifier);
    EXPECT_FALSE(Abierto());
    EXPECT_EQ(Almacenados().UltimaFila(), 1);
    EXPECT_FALSE(ElMenuTieneElTeclado());
}

class TeclasDeMenuEnEstablecimientoTest : public PruebaDeEstablecimientos {};

TEST_F(TeclasDeMenuEnEstablecimientoTest, InEuskeraAltAAcceptsOnTheEstablishmentForm) {
    oFecha().IDI(u"E"_s);
    marco->AnadirCaptions();
    Deshabilitar_menu();
    oEstablecimientos().Modo = cZTEstablecimientos::kModoNuevo;
    oEstablecimientos().InicializarDatos();
    Abrir(frmZTEstablecimiento::kNombre);
    Escribir(u"txtCIM"_s, u"20es123y"_s);
    Tecla(Qt::Key_A, Qt::AltModifier);
    // Something is missing, and that is told: the button was pressed.
    EXPECT_EQ(pantalla.listas.size(), 1U);
}
