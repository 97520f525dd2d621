// Who has the keyboard when a modal form has gone.

#include <QMessageBox>

#include "core/online/cZTActOnline.h"
#include "forms/declarants/frmZTDeclarante.h"
#include "forms/messages/PantallaQt.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "tests/support/AlDialogo.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/PruebaDeDeclarante.h"
#include "tests/support/TeclaMantenida.h"

using namespace Qt::StringLiterals;

namespace {

class FocoTrasModalTest : public PruebaDeDeclarante {
  protected:
    /// Shows a modal form and unloads it as soon as it is in use.
    void MostrarYDescargar(QStringView nombre) {
        CuandoAparezca(nombre.toString(), [nombre](QWidget& modal) {
            ASSERT_TRUE(EsperarActiva(&modal));
            Formularios::Descargar(nombre);
        });
        Formularios::MostrarModal(nombre);
    }
};

}  // namespace

TEST_F(FocoTrasModalTest, TheNextKeyGoesToTheBoxThatHadTheFocusBelow) {
    AbrirNuevo();
    IrA(u"txtNombre"_s);
    MostrarYDescargar(Forma::About);
    // No event loop turns between the form and the key.
    EXPECT_TRUE(marco->isActiveWindow());
    EXPECT_EQ(Foco(), u"txtNombre"_s);
    ApretarTecla(Qt::Key_Q);
    EXPECT_EQ(TextoDe(u"txtNombre"_s), u"Q"_s);
}

TEST_F(FocoTrasModalTest, AFormOpenedStraightAfterTakesTheNextKey) {
    MostrarYDescargar(Forma::Idioma);
    marco->findChild<QAction*>(u"mnuNuedec"_s)->trigger();
    formulario = &Formularios::Obtener(frmZTDeclarante::kNombre).Ventana();
    EXPECT_EQ(Foco(), u"txtNIF"_s);
    ApretarTecla(Qt::Key_7);
    EXPECT_EQ(TextoDe(u"txtNIF"_s), u"7"_s);
}

TEST_F(FocoTrasModalTest, ItIsSoAfterABoxOfThePlatformToo) {
    AbrirNuevo();
    IrA(u"txtNombre"_s);
    PantallaQt real;
    const AlDialogo<QMessageBox> caja([](QMessageBox& c) { c.accept(); });
    real.MensajePlataforma(u"aviso"_s, true);
    EXPECT_EQ(Foco(), u"txtNombre"_s);
    ApretarTecla(Qt::Key_Q);
    EXPECT_EQ(TextoDe(u"txtNombre"_s), u"Q"_s);
}
