// A held key and the commands that delete: what asks, asks once, and waits for the key to be let go.

#include "core/records/cZTDeclarante.h"
#include "core/records/cZTListaDeclarantes.h"
#include "forms/declarants/frmZTListaDeclarantes.h"
#include "forms/messages/PantallaQt.h"
#include "forms/messages/frmZTMsgBox.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/PruebaDeDeclarante.h"
#include "tests/support/TeclaMantenida.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kDeclarantes = 8;

class BorradoConTeclaMantenidaTest : public PruebaDeDeclarante {
  protected:
    void SetUp() override {
        PruebaDeDeclarante::SetUp();
        FijarPantalla(&real);
        for (int i = 0; i < kDeclarantes; ++i) {
            Guardar();
        }
        oListaDeclarantes().Modo = cZTListaDeclarantes::kModoBorrar;
        oListaDeclarantes().vBufferDeclarantes = oListaDeclarantes().ObtenerDeclarantes();
        Abrir(frmZTListaDeclarantes::kNombre);
    }

    static int Quedan() { return Almacenados().UltimaFila(); }
    static bool Preguntando() { return Formularios::Visible(frmZTMsgBox::kNombre.toString()); }
    static void Descartar() {
        EXPECT_TRUE(Preguntando()) << "the question is still there";
        Formularios::Descargar(frmZTMsgBox::kNombre.toString());
    }

    PantallaQt real;
};

}  // namespace

TEST_F(BorradoConTeclaMantenidaTest, EnterHeldInTheListDeletesNobody) {
    IrA(u"lsvDeclarantes"_s);
    TeclaMantenida(Qt::Key_Return, Descartar).Mantener();
    EXPECT_EQ(Quedan(), kDeclarantes);
}

TEST_F(BorradoConTeclaMantenidaTest, EnterAndSpaceHeldOnTheButtonDeleteNobody) {
    IrA(u"cmdAceptar"_s);
    TeclaMantenida(Qt::Key_Return, Descartar).Mantener();
    EXPECT_EQ(Quedan(), kDeclarantes);
    IrA(u"cmdAceptar"_s);
    TeclaMantenida(Qt::Key_Space, Descartar).Mantener();
    EXPECT_EQ(Quedan(), kDeclarantes);
}

TEST_F(BorradoConTeclaMantenidaTest, TheQuestionTakesNoEnterOrSpaceUntilTheKeyWasLetGoOnce) {
    IrA(u"lsvDeclarantes"_s);
    CuandoAparezca(frmZTMsgBox::kNombre.toString(), [](QWidget& pregunta) {
        ASSERT_TRUE(EsperarActiva(&pregunta));
        for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Space}) {
            ApretarTecla(tecla);
            EXPECT_TRUE(Preguntando());
        }
        SoltarTecla(Qt::Key_Space);
        EXPECT_TRUE(Preguntando());
        SoltarTecla(Qt::Key_Return);
        EXPECT_TRUE(Preguntando());
        ApretarTecla(Qt::Key_Return);
        EXPECT_FALSE(Preguntando());
    });
    ApretarTecla(Qt::Key_Return);
    EXPECT_EQ(Quedan(), kDeclarantes - 1);
    SoltarTecla(Qt::Key_Return);
}

TEST_F(BorradoConTeclaMantenidaTest, OpenedByTheMouseItTakesEnterAtOnce) {
    CuandoAparezca(frmZTMsgBox::kNombre.toString(), [](QWidget& pregunta) {
        ASSERT_TRUE(EsperarActiva(&pregunta));
        QTest::keyClick(pregunta.windowHandle(), Qt::Key_Return);
        EXPECT_FALSE(Preguntando());
    });
    Pulsar(u"cmdAceptar"_s);
    EXPECT_EQ(Quedan(), kDeclarantes - 1);
}
