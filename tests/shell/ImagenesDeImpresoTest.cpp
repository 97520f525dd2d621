#include "shell/ImagenesDeImpreso.h"

#include <QLabel>
#include <QTest>

#include "shell/MDIZT.h"
#include "shell/Main.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class ImagenesDeImpresoTest : public PruebaDeFormularios {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        RegistrarFormularios();
    }

    static QSize Tamano(const QString& nombre) {
        return ElFormulario<MDIZT>().findChild<QLabel*>(nombre)->pixmap().size();
    }
};

}  // namespace

TEST_F(ImagenesDeImpresoTest, TheMainWindowKeepsThePicturesOfTheFormsInAHiddenContainer) {
    const auto& marco = ElFormulario<MDIZT>();
    const auto* contenedor = marco.findChild<QWidget*>(u"Picture1"_s);
    ASSERT_NE(contenedor, nullptr);
    EXPECT_TRUE(contenedor->isHidden());
    for (const QString& nombre : {u"picJustificante"_s, u"picLiquidacion"_s, u"picInsLugar"_s, u"picIdeMaq"_s,
                                  u"picTalonDeCargo"_s, u"picDeclarante"_s, u"Logo"_s}) {
        EXPECT_NE(contenedor->findChild<QLabel*>(nombre), nullptr) << nombre.toStdString();
    }
    ASSERT_TRUE(QTest::qWaitFor([] { return !Tamano(u"Logo"_s).isEmpty(); }));
    EXPECT_EQ(Tamano(u"picDeclarante"_s), QSize(30, 82));
    EXPECT_EQ(Tamano(u"picJustificante"_s), QSize(49, 142));
    EXPECT_TRUE(Tamano(u"picLiquidacion"_s).isEmpty());
}

TEST_F(ImagenesDeImpresoTest, VerticalTextReadsUpward) {
    // The stroke of an "L" is its left edge: read upward it lies at the bottom.
    const QImage imagen = TextoVertical({u"L"_s}, QSize(40, 80)).toImage();
    const auto oscuros = [&imagen](int desde, int hasta) {
        int cuenta = 0;
        for (int y = desde; y < hasta; ++y) {
            for (int x = 0; x < imagen.width(); ++x) {
                cuenta += qGray(imagen.pixel(x, y)) < 128 ? 1 : 0;
            }
        }
        return cuenta;
    };
    EXPECT_GT(oscuros(40, 80), oscuros(0, 40));
}
