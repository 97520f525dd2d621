#include "forms/widgets/Imagenes.h"

#include <gtest/gtest.h>

#include <QImage>

#include "tests/support/Imprimibles.h"

namespace {

QImage Dibujo(const QIcon& icono) { return icono.pixmap(16, 16).toImage(); }

}  // namespace

TEST(ImagenesTest, ANameIsThePictureOfItsNumber) {
    EXPECT_EQ(Dibujo(ilsMDI16(Imagen16::Flecha)), Dibujo(ilsMDI16(1)));
    EXPECT_EQ(Dibujo(ilsMDI16(Imagen16::Aceptar)), Dibujo(ilsMDI16(6)));
    EXPECT_EQ(Dibujo(ilsMDI16(Imagen16::GuardarGris)), Dibujo(ilsMDI16(21)));
    EXPECT_EQ(Dibujo(ilsMDI32(Imagen32::Programa)), Dibujo(ilsMDI32(1)));
    EXPECT_EQ(Dibujo(ilsMDI32(Imagen32::FlechaConFoco)), Dibujo(ilsMDI32(5)));
}

TEST(ImagenesTest, APictureIsDrawnOnceHoweverOftenItIsAskedFor) {
    const auto clave = [](const QIcon& icono) { return icono.pixmap(16, 16).cacheKey(); };
    EXPECT_EQ(clave(ilsMDI16(1)), clave(ilsMDI16(1)));
    EXPECT_EQ(clave(ilsMDI32(1)), clave(ilsMDI32(1)));
    EXPECT_EQ(clave(ilsMDI16_(QStringLiteral("AYUDA"))), clave(ilsMDI16_(QStringLiteral("AYUDA"))));
}

TEST(ImagenesTest, ANumberOutsideTheListIsARunTimeFailure) {
    for (const int numero : {-1, 0, 22}) {
        EXPECT_EQ(NumeroDelError([&] { (void)ilsMDI16(numero); }), 9) << numero;
    }
    for (const int numero : {-1, 0, 6}) {
        EXPECT_EQ(NumeroDelError([&] { (void)ilsMDI32(numero); }), 9) << numero;
    }
}

TEST(ImagenesTest, EveryPictureOfACommandHasItsGreyTwinAndOthersAreTheirOwn) {
    for (const auto& [color, gris] :
         {std::pair{5, 18}, {6, 14}, {8, 7}, {9, 15}, {10, 17}, {11, 16}, {13, 19}, {20, 21}}) {
        EXPECT_EQ(static_cast<int>(Gris(static_cast<Imagen16>(color))), gris);
    }
    for (const Imagen16 imagen : {Imagen16::Flecha, Imagen16::Cerrar, Imagen16::AceptarGris}) {
        EXPECT_EQ(Gris(imagen), imagen);
    }
}
