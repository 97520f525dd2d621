#include "forms/printing/ImagenesDeImpreso.h"

#include <QPainter>
#include <QWidget>

#include "app/MDIZT.h"
#include "app/Main.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kMargen = 20;

class ImagenesDeImpresoTest : public PruebaDeFormularios {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        RegistrarFormularios();
    }

    static QWidget& Control(const QString& nombre) {
        return *ElFormulario<MDIZT>().findChild<QWidget*>(nombre);
    }

    /// A picture on white, with a margin about it, in pixels of a quarter of its own.
    static QImage Pintada(ImagenDeImpreso cual, int margen = 0) {
        constexpr int kEscala = 4;
        QImage imagen(TamanoDeImagen(cual) * kEscala + QSize(2 * margen, 2 * margen), QImage::Format_RGB32);
        imagen.fill(Qt::white);
        QPainter pintor(&imagen);
        pintor.translate(margen, margen);
        pintor.scale(kEscala, kEscala);
        PintarImagen(pintor, cual);
        return imagen;
    }

    /// What surrounds the dark dots from a column to another.
    static QRect Tinta(const QImage& imagen, int desde, int hasta) {
        QRect tinta;
        for (int y = 0; y < imagen.height(); ++y) {
            for (int x = desde; x < hasta; ++x) {
                if (qGray(imagen.pixel(x, y)) < 128) {
                    tinta |= QRect(x, y, 1, 1);
                }
            }
        }
        return tinta;
    }

    static bool TieneDibujo(const QString& nombre) {
        const QImage imagen = Control(nombre).grab().toImage();
        return !Tinta(imagen, 0, imagen.width()).isEmpty();
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
        EXPECT_NE(contenedor->findChild<QWidget*>(nombre), nullptr) << nombre.toStdString();
    }
    EXPECT_EQ(Control(u"Logo"_s).size(), QSize(50, 63));
    EXPECT_EQ(Control(u"picDeclarante"_s).size(), QSize(30, 82));
    EXPECT_EQ(Control(u"picJustificante"_s).size(), QSize(49, 142));
    for (const QString& nombre : {u"Logo"_s, u"picDeclarante"_s, u"picJustificante"_s}) {
        EXPECT_TRUE(TieneDibujo(nombre)) << nombre.toStdString();
    }
    EXPECT_FALSE(TieneDibujo(u"picLiquidacion"_s));
}

TEST_F(ImagenesDeImpresoTest, VerticalTextReadsUpward) {
    // Of its two lines the first one, which is the shorter, is then the left one.
    const QImage imagen = Pintada(ImagenDeImpreso::Justificante);
    const int mitad = imagen.width() / 2;
    const QRect primera = Tinta(imagen, 0, mitad);
    const QRect segunda = Tinta(imagen, mitad, imagen.width());
    EXPECT_LT(primera.height(), segunda.height() * 0.7);
    EXPECT_GT(primera.height(), segunda.height() * 0.3);
}

TEST_F(ImagenesDeImpresoTest, NoPictureIsLargerThanItsSize) {
    for (const ImagenDeImpreso cual :
         {ImagenDeImpreso::Logo, ImagenDeImpreso::Declarante, ImagenDeImpreso::Justificante}) {
        const QImage imagen = Pintada(cual, kMargen);
        const QRect tinta = Tinta(imagen, 0, imagen.width());
        EXPECT_TRUE(imagen.rect().adjusted(kMargen, kMargen, -kMargen, -kMargen).contains(tinta));
        EXPECT_GT(tinta.height(), imagen.height() / 2);
        EXPECT_GT(tinta.width(), imagen.width() / 3);
    }
}
