// Figures typed on the annex form as people write them, up to the store.

#include "tests/support/PruebaDeAnexos.h"

using namespace Qt::StringLiterals;

namespace {

class LecturaDeFigurasTest : public PruebaDeAnexos {
  protected:
    void SetUp() override {
        PruebaDeAnexos::SetUp();
        HacerDeclaracion(2007);
        AbrirAnexos();
    }
    void TearDown() override {
        FijarRegional({});
        PruebaDeAnexos::TearDown();
    }
};

}  // namespace

TEST_F(LecturaDeFigurasTest, ThePointOfTheMainKeyboardIsTheDecimalOneWhereItMakesNoThousands) {
    Escribir(Exento(1), u"12.5"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(TextoDe(Exento(1)), u"12,50"_s);
    EXPECT_EQ(oAnexos().SUMEX(1), 12.5);
    Escribir(BaseImp(1), u"1.234"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(oAnexos().BASIM(1), 1234.0);
    EXPECT_EQ(pantalla.pitidos, 0);
}

TEST_F(LecturaDeFigurasTest, UnderEnglishSettingsACommaMakesThousands) {
    FijarRegional({.decimal = u'.', .grupo = u','});
    Escribir(BaseImp(1), u"1,000.5"_s);
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(TextoDe(BaseImp(1)), u"1,000.50"_s);
    EXPECT_EQ(oAnexos().BASIM(1), 1000.5);
}

TEST_F(LecturaDeFigurasTest, AFigureSavedFromItsBoxByTheAccessKeyIsReadByTheSameRules) {
    Escribir(Exento(2), u"7"_s);
    Escribir(BaseImp(1), u"1000.50"_s);
    Tecla(Qt::Key_G, Qt::AltModifier);
    const std::vector<Linea> lineas = Almacenadas();
    ASSERT_EQ(lineas.size(), 2U);
    EXPECT_EQ(lineas.front(), Linea(cses.front(), 1, 100'050.0));
}

TEST_F(LecturaDeFigurasTest, WhatCannotBeReadIsNotSavedButBeepsAndGoesBack) {
    Escribir(BaseImp(1), u"1.234,50"_s);
    Tecla(Qt::Key_Tab);
    Escribir(BaseImp(1), u"1.23.4"_s);
    Tecla(Qt::Key_G, Qt::AltModifier);
    EXPECT_EQ(pantalla.pitidos, 1);
    EXPECT_EQ(TextoDe(BaseImp(1)), u"1.234,50"_s);
    ASSERT_EQ(LineasAlmacenadas(), 1);
    EXPECT_EQ(Almacenadas().front(), Linea(cses.front(), 1, 123'450.0));
}
