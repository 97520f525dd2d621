#include "core/base/Regional.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(RegionalTest, ASystemWithoutSettingsCountsAsSpanish) {
    const ConfiguracionRegional espanola{u',', u'.'};
    EXPECT_EQ(RegionalDelSistema(QLocale::c()), espanola);
    EXPECT_EQ(RegionalDelSistema(QLocale(u"es_ES"_s)), espanola);
}

TEST(RegionalTest, TheSettingsOfASystemThatHasSomeAreTakenAsTheyAre) {
    EXPECT_EQ(RegionalDelSistema(QLocale(u"en_GB"_s)), (ConfiguracionRegional{u'.', u','}));
    EXPECT_EQ(RegionalDelSistema(QLocale(u"de_CH"_s)), (ConfiguracionRegional{u'.', u'’'}));
    EXPECT_EQ(RegionalDelSistema(QLocale(u"fr_FR"_s)), (ConfiguracionRegional{u',', QChar(0x202F)}));
}

TEST(RegionalTest, WithoutAnotherTheSystemIsAskedAndNotTheLocaleOfTheProcess) {
    const QLocale antes;
    for (const QString& otra : {u"en_GB"_s, u"fr_FR"_s}) {
        QLocale::setDefault(QLocale(otra));
        EXPECT_EQ(RegionalDelSistema(), RegionalDelSistema(QLocale::system())) << otra.toStdString();
    }
    QLocale::setDefault(antes);
}
