#include "app/TextosDeQt.h"

#include <gtest/gtest.h>

#include "core/run/Entorno.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

class TextosDeQtTest : public testing::Test {
  protected:
    void TearDown() override { Entorno().OffsetIdioma = kOffsetCastellano; }
    [[nodiscard]] QString En(qint16 offset, const char* texto) const {
        Entorno().OffsetIdioma = offset;
        return textos.translate("QPrintPropertiesWidget", texto);
    }

    const TextosDeQt textos;
};

}  // namespace

TEST_F(TextosDeQtTest, ATextThatTheToolkitHasNotTranslatedComesFromTheCatalogueInEitherLanguage) {
    EXPECT_EQ(En(kOffsetCastellano, "Pages"), u"Páginas"_s);
    EXPECT_EQ(En(kOffsetEuskera, "Pages"), u"Orrialdeak"_s);
}

TEST_F(TextosDeQtTest, NamesOfKeysAreThoseOfTheLanguage) {
    for (const char* tecla : {"Ctrl", "Shift", "Space", "Esc", "Ins", "Del", "Home", "End", "PgUp", "PgDown",
                              "Backspace", "Return", "Show Details...", "Hide Details..."}) {
        const QString castellano = En(kOffsetCastellano, tecla);
        const QString euskera = En(kOffsetEuskera, tecla);
        EXPECT_FALSE(castellano.isEmpty()) << tecla;
        EXPECT_FALSE(euskera.isEmpty()) << tecla;
        Entorno().OffsetIdioma = kOffsetEuskera;
        EXPECT_EQ(textos.translate("QShortcut", tecla), euskera);
        EXPECT_NE(textos.translate("QShortcut", tecla), castellano) << tecla;
    }
}

TEST_F(TextosDeQtTest, TextsOfSeveralLinesKeepThem) {
    EXPECT_EQ(En(kOffsetEuskera, "%1 already exists.\nDo you want to overwrite it?"),
              u"%1 badago lehendik.\nGainean idatzi nahi duzu?"_s);
}

TEST_F(TextosDeQtTest, BlanksAtTheEndsCount) { EXPECT_EQ(En(kOffsetEuskera, "Show "), u"Erakutsi "_s); }

TEST_F(TextosDeQtTest, WhatNobodyTranslatesIsLeftToTheToolkit) {
    for (const qint16 offset : {kOffsetCastellano, kOffsetEuskera}) {
        EXPECT_TRUE(En(offset, "volver_hecho").isEmpty())
            << "the program's own texts are none of the toolkit's";
        EXPECT_TRUE(En(offset, "").isEmpty());
    }
}
