#include "core/printing/FicheroDePdf.h"

#include "tests/support/Imprimibles.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

TEST(FicheroDePdfTest, AnOrdinaryNameStays) {
    EXPECT_EQ(NombreDeFichero(u"569_12345678Z_2007_2T_borrador"_s), u"569_12345678Z_2007_2T_borrador"_s);
    EXPECT_EQ(NombreDeFichero(u"Ñandú 1.5"_s), u"Ñandú 1.5"_s);
}

TEST(FicheroDePdfTest, WhatSomeSystemGivesAMeaningIsReplaced) {
    EXPECT_EQ(NombreDeFichero(u"a/b\\c:d*e?f\"g<h>i|j\nk"_s), u"a-b-c-d-e-f-g-h-i-j-k"_s);
    EXPECT_EQ(NombreDeFichero(u"../../etc/passwd"_s), u"-..-etc-passwd"_s);
}

TEST(FicheroDePdfTest, ItIsNeverEmptyHiddenOrADevice) {
    for (const QString& nombre : {u""_s, u" . "_s, u"CON"_s, u"lpt1.txt"_s, u"nul"_s}) {
        const QString fichero = NombreDeFichero(nombre);
        EXPECT_TRUE(fichero.startsWith(u"documento")) << fichero.toStdString();
    }
    EXPECT_EQ(NombreDeFichero(u".oculto. "_s), u"oculto"_s);
    EXPECT_EQ(NombreDeFichero(u"CONTRATO"_s), u"CONTRATO"_s);
}

TEST(FicheroDePdfTest, ALongNameIsCutBetweenCharacters) {
    EXPECT_EQ(NombreDeFichero(QString(300, u'a')), QString(200, u'a'));
    EXPECT_EQ(NombreDeFichero(QString(150, u'ñ')), QString(100, u'ñ'));
    const QString emojis = u"\U0001F600"_s.repeated(60);
    EXPECT_EQ(NombreDeFichero(emojis), emojis.left(100));
}

RC_GTEST_PROP(FicheroDePdfTest, AnyTextGivesANameThatStaysInItsFolder, (const std::string& bytes)) {
    const QString nombre = NombreDeFichero(QString::fromStdString(bytes));
    RC_ASSERT(!nombre.isEmpty());
    RC_ASSERT(nombre.toUtf8().size() <= 220);
    RC_ASSERT(!nombre.contains(u'/') && !nombre.contains(u'\\') && !nombre.contains(QChar::Null));
    RC_ASSERT(!nombre.startsWith(u'.') && !nombre.endsWith(u'.') && nombre == nombre.trimmed());
}
