#include "core/base/Windows1252.h"

#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

TEST(Windows1252Test, EveryByteComesBackTheSame) {
    QByteArray todos;
    for (int b = 0; b < 256; ++b) {
        todos += static_cast<char>(b);
    }
    EXPECT_EQ(AWindows1252(DeWindows1252(todos)), todos);
}

TEST(Windows1252Test, HighCharactersHaveTheirBytes) {
    EXPECT_EQ(AWindows1252(u"€Ñçºª"), QByteArray("\x80\xD1\xE7\xBA\xAA"));
    EXPECT_EQ(DeWindows1252(QByteArray("\x80\x99")), u"€™"_s);
}

TEST(Windows1252Test, ACharacterOutsideThePageIsAnErrorThatNamesIt) {
    EXPECT_EQ(NumeroDelError([] { AWindows1252(u"a\u0416"); }), 20001);
    EXPECT_TRUE(DescripcionDelError([] { AWindows1252(u"\u0416"); }).contains(u"U+0416"));
}
