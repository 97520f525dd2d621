#include "core/exchange/TextoEnUtf8.h"

#include <QTemporaryDir>

#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

class TextoEnUtf8Test : public testing::Test {
  protected:
    [[nodiscard]] bool Parece(const QByteArray& contenido) const {
        EscribirFichero(ruta, contenido);
        return PareceUtf8(ruta);
    }

    QTemporaryDir carpeta;
    QString ruta = carpeta.filePath(u"Declaran.txt"_s);
};

}  // namespace

TEST_F(TextoEnUtf8Test, TheMarkOrValidSequencesAloneTellUtf8) {
    EXPECT_TRUE(Parece("\xEF\xBB\xBFMUNOZ\r\n"));
    EXPECT_TRUE(Parece("MU\xC3\x91OZ\r\n"));
    EXPECT_TRUE(Parece(QByteArray(65'535, 'X') + "\xC3\x91"));
}

TEST_F(TextoEnUtf8Test, TheCodePageOfTheExchangeAndPlainAsciiAreNoUtf8) {
    EXPECT_FALSE(Parece("MUNOZ\r\n"));
    EXPECT_FALSE(Parece(""));
    EXPECT_FALSE(Parece("MU\xD1OZ\r\n"));
    EXPECT_FALSE(
        Parece("MU\xC3\x91OZ PE\xD1"
               "A\r\n"));
    EXPECT_FALSE(Parece("MU\xC3"));
    EXPECT_FALSE(Parece("\xC0\xAF"));
}

TEST_F(TextoEnUtf8Test, WhatIsNoFileIsNoUtf8) {
    EXPECT_FALSE(PareceUtf8(carpeta.path()));
    EXPECT_FALSE(PareceUtf8(carpeta.filePath(u"no_hay.txt"_s)));
    EXPECT_FALSE(PareceUtf8(u"/dev/zero"_s));
}

TEST_F(TextoEnUtf8Test, OnlyTheFirstLineLosesTheMark) {
    EXPECT_EQ(DeUtf8("\xEF\xBB\xBF\xC3\x91", true), u"Ñ"_s);
    EXPECT_EQ(DeUtf8("\xC3\x91", true), u"Ñ"_s);
    EXPECT_EQ(DeUtf8("\xC3\x91", false), u"Ñ"_s);
}
