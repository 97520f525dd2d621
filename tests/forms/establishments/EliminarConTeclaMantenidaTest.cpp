// A held key and the command that deletes establishments.

#include "forms/messages/PantallaQt.h"
#include "forms/messages/frmZTMsgBox.h"
#include "tests/support/PruebaDeEstablecimientos.h"
#include "tests/support/TeclaMantenida.h"

using namespace Qt::StringLiterals;

namespace {

class EliminarConTeclaMantenidaTest : public PruebaDeEstablecimientos,
                                      public testing::WithParamInterface<Qt::Key> {
  protected:
    void SetUp() override {
        PruebaDeEstablecimientos::SetUp();
        for (int i = 0; i < kEstablecimientos; ++i) {
            Guardar(u"20ES11%1A"_s.arg(i));
        }
        FijarPantalla(&real);
        Abrir(frmZTListaEstablecimientos::kNombre);
    }
    static constexpr int kEstablecimientos = 5;

    PantallaQt real;
};

}  // namespace

TEST_P(EliminarConTeclaMantenidaTest, ItAsksOnceAndDeletesNothing) {
    IrA(u"cmdEliminar"_s);
    TeclaMantenida(GetParam(), [] {
        EXPECT_TRUE(Formularios::Visible(frmZTMsgBox::kNombre));
        Formularios::Descargar(frmZTMsgBox::kNombre);
    }).Mantener();
    EXPECT_EQ(Almacenados().UltimaFila(), kEstablecimientos);
}

INSTANTIATE_TEST_SUITE_P(Teclas, EliminarConTeclaMantenidaTest,
                         testing::Values(Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space));
