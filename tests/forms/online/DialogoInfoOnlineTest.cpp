// The description of the on-line assistance in both languages, with the system's type and with one twice as
// large: whether anything is cut off, what screen readers are told, and the Tab key.

#include "forms/online/DialogoInfoOnline.h"

#include <QApplication>

#include "tests/support/DialogoDePrueba.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/RevisionDePantalla.h"

using namespace Qt::StringLiterals;

namespace {

struct Caso {
    qint16 offset;
    int aumento;

    friend void PrintTo(const Caso& caso, std::ostream* salida) {
        *salida << (caso.offset == 0 ? "in Castellano" : "in Euskera") << ", type times " << caso.aumento;
    }
};

class DialogoInfoOnlineTest : public DialogoDePrueba, public testing::WithParamInterface<Caso> {
  protected:
    void SetUp() override {
        DialogoDePrueba::SetUp();
        m_letra = QApplication::font();
        QFont grande = m_letra;
        grande.setPointSizeF(m_letra.pointSizeF() * GetParam().aumento);
        QApplication::setFont(grande);
        dialogo = std::make_unique<DialogoInfoOnline>(
            GetParam().offset, u"https://www.ondarzia.example/es/asistencia-on-line"_s, nullptr);
        dialogo->show();
        ASSERT_TRUE(EsperarActiva(dialogo.get()));
    }
    void TearDown() override {
        dialogo.reset();
        QApplication::setFont(m_letra);
        DialogoDePrueba::TearDown();
    }

    std::unique_ptr<DialogoInfoOnline> dialogo;

  private:
    QFont m_letra;
};

std::string NombreDelCaso(const testing::TestParamInfo<Caso>& caso) {
    return std::string(caso.param.offset == 0 ? "cas" : "eus") + (caso.param.aumento == 1 ? "" : "_doble");
}

}  // namespace

TEST_P(DialogoInfoOnlineTest, EveryTextHasRoom) {
    for (const QWidget* control : dialogo->findChildren<QWidget*>()) {
        if (EsEtiquetaOBoton(*control) && !EsDeQt(*control)) {
            EXPECT_TRUE(Cabe(*control)) << Nombre(*control);
        }
    }
    const QSize pantallaEntera = dialogo->screen()->availableSize();
    EXPECT_LE(dialogo->width(), pantallaEntera.width());
    EXPECT_LE(dialogo->height(), pantallaEntera.height());
}

TEST_P(DialogoInfoOnlineTest, ScreenReadersAreToldWhatEachControlIs) {
    EXPECT_FALSE(dialogo->windowTitle().isEmpty());
    for (const QWidget* control : dialogo->findChildren<QWidget*>()) {
        if (NecesitaNombre(*control) && !EsDeQt(*control)) {
            EXPECT_TRUE(!control->accessibleName().isEmpty() || TieneEtiqueta(*dialogo, *control))
                << Nombre(*control);
        }
    }
}

TEST_P(DialogoInfoOnlineTest, TheTabKeyGoesFromTheAddressToTheButtonsAndBack) {
    Control(*dialogo, "txtDireccion").setFocus();
    for (const char* siguiente : {"cmdAbrir", "cmdCerrar", "txtDireccion"}) {
        QTest::keyClick(dialogo->focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(dialogo->focusWidget(), &Control(*dialogo, siguiente)) << siguiente;
    }
}

INSTANTIATE_TEST_SUITE_P(EnCadaIdioma, DialogoInfoOnlineTest,
                         testing::Values(Caso{0, 1}, Caso{0, 2}, Caso{1000, 1}, Caso{1000, 2}),
                         NombreDelCaso);
