#include "core/records/FormatoCIM.h"

#include <cmath>

#include "core/base/Conversiones.h"
#include "core/base/Regional.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kLetras = u"TRWAGMYFPDXBNJZSQVHLCKE";
constexpr QStringView kAlfabeto = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ";

/// The first seven characters of a code that may be good, any of them.
rc::Gen<QString> SieteCaracteres() {
    return rc::gen::exec([] {
        const auto uno = [](const std::u16string& de) { return QChar(*rc::gen::elementOf(de)); };
        const QString pareja = u"%1"_s.arg(*rc::gen::inRange(1, 100), 2, 10, QChar(u'0'));
        QString texto = pareja + uno(u"ECSV") + uno(u"SPUM");
        while (texto.size() < 7) {
            texto += uno(kAlfabeto.toString().toStdU16String());
        }
        return texto;
    });
}

/// The digits that the characters stand for, two each.
QString Cifras(const QString& caracteres) {
    QString cifras;
    for (const QChar c : caracteres) {
        cifras += u"%1"_s.arg(kAlfabeto.indexOf(c), 2, 10, QChar(u'0'));
    }
    return cifras;
}

/// The remainder by whole numbers: 14 digits fit 64 bits.
qint64 RestoExacto(const QString& cifras) { return cifras.toLongLong() % 23; }

/// The remainder by way of a division in floating point, whose decimals are taken from its text of 15
/// significant digits.
qint64 RestoPorDecimales(const QString& cifras) {
    QString cociente = QString::number(cifras.toDouble() / 23.0, 'g', 15);
    cociente.replace(u'.', u',');
    const auto coma = cociente.indexOf(u',');
    if (coma < 0) {
        return 0;
    }
    return std::lrint(23.0 * TextoADoble(u'0' + cociente.mid(coma)));
}

}  // namespace

TEST(FormatoCIM, TheWorkedExampleIsGood) {
    EXPECT_EQ(Cifras(u"20ES123"_s), u"02001428010203"_s);
    EXPECT_EQ(LetraDeControlCIM(u"20ES123"), u'Y');
    EXPECT_TRUE(ComprobarFormatoCIM(u"20ES123Y"));
    EXPECT_FALSE(ComprobarFormatoCIM(u"20ES123X"));
}

TEST(FormatoCIM, OneOfEachKindIsGood) {
    for (const QString& codigo : {u"01CP000"_s, u"99SU999"_s, u"50VMZZZ"_s, u"10EPA1B"_s}) {
        EXPECT_TRUE(ComprobarFormatoCIM(codigo + LetraDeControlCIM(codigo))) << codigo.toStdString();
    }
}

RC_GTEST_PROP(FormatoCIM, TheCheckLetterIsThatOfTheExactRemainder, ()) {
    const QString codigo = *SieteCaracteres();
    RC_ASSERT(LetraDeControlCIM(codigo) == kLetras.at(RestoExacto(Cifras(codigo))));
}

RC_GTEST_PROP(FormatoCIM, TheCheckLetterIsThatOfTheDivisionOf15Digits, ()) {
    FijarRegional({});
    const QString codigo = *SieteCaracteres();
    RC_ASSERT(LetraDeControlCIM(codigo) == kLetras.at(RestoPorDecimales(Cifras(codigo))));
}

RC_GTEST_PROP(FormatoCIM, AmongAllLettersOnlyTheCheckLetterIsGood, ()) {
    const QString codigo = *SieteCaracteres();
    int buenas = 0;
    for (const QChar letra : kLetras) {
        const bool bueno = ComprobarFormatoCIM(codigo + letra);
        RC_ASSERT(bueno == (letra == kLetras.at(RestoExacto(Cifras(codigo)))));
        buenas += bueno ? 1 : 0;
    }
    RC_ASSERT(buenas == 1);
}

TEST(FormatoCIM, TheFirstTwoCharactersAreDigitsAndNot00) {
    EXPECT_FALSE(ComprobarFormatoCIM(u"X0ES123Y"));
    EXPECT_FALSE(ComprobarFormatoCIM(u"00ES123Y"));
    EXPECT_FALSE(ComprobarFormatoCIM(u"0"));
    EXPECT_FALSE(ComprobarFormatoCIM(u"2 ES123Y"));
}

TEST(FormatoCIM, AZeroPairIsRefusedBeforeTheOthersAreLookedAt) {
    // A character that could not be converted stands behind.
    EXPECT_FALSE(ComprobarFormatoCIM(u"00es123Y"));
}

TEST(FormatoCIM, ADigitAndALetterAreNoNumber) {
    EXPECT_EQ(NumeroDelError([] { (void)ComprobarFormatoCIM(u"2XES123Y"); }), 13);
    EXPECT_EQ(NumeroDelError([] { (void)ComprobarFormatoCIM(u"0XES123Y"); }), 13);
}

TEST(FormatoCIM, ThirdAndFourthCharactersAreOutOfTheirLetters) {
    for (const QChar c : kAlfabeto) {
        const QString tercero = u"20"_s + c + u"S123"_s;
        EXPECT_EQ(ComprobarFormatoCIM(tercero + LetraDeControlCIM(tercero)), u"ECSV"_s.contains(c));
        const QString cuarto = u"20E"_s + c + u"123"_s;
        EXPECT_EQ(ComprobarFormatoCIM(cuarto + LetraDeControlCIM(cuarto)), u"SPUM"_s.contains(c));
    }
}

TEST(FormatoCIM, SmallLettersInThirdAndFourthPlacePassThereAndFailInTheCheckLetter) {
    EXPECT_EQ(NumeroDelError([] { (void)ComprobarFormatoCIM(u"20eS123Y"); }), 13);
    EXPECT_EQ(NumeroDelError([] { (void)ComprobarFormatoCIM(u"20Es123Y"); }), 13);
    EXPECT_FALSE(ComprobarFormatoCIM(u"20xS123Y"));
}

TEST(FormatoCIM, ASmallLetterInTheEighthPlaceFailsCleanly) {
    EXPECT_FALSE(ComprobarFormatoCIM(u"20ES123y"));
    EXPECT_FALSE(ComprobarFormatoCIM(u"20ES1236"));
    EXPECT_FALSE(ComprobarFormatoCIM(u"20ES123I"));
}

TEST(FormatoCIM, ACharacterOutsideDigitsAndCapitalsCannotBeConverted) {
    for (const QString& codigo : {u"20ES12aY"_s, u"20ES1-3Y"_s, u"20ES12ÑY"_s, u"20ES 23Y"_s}) {
        EXPECT_EQ(NumeroDelError([&] { (void)ComprobarFormatoCIM(codigo); }), 13) << codigo.toStdString();
    }
}

TEST(FormatoCIM, NothingAtAllCannotBeConverted) {
    EXPECT_EQ(NumeroDelError([] { (void)ComprobarFormatoCIM(u""); }), 13);
}

TEST(FormatoCIM, AShortCodeIsCheckedAsFarAsItGoes) {
    // All of its characters make the number, and the last one is compared as the check letter.
    EXPECT_FALSE(ComprobarFormatoCIM(u"20E"));
    EXPECT_FALSE(ComprobarFormatoCIM(u"2"));
    EXPECT_EQ(LetraDeControlCIM(u"20SP"), u'P');
    EXPECT_TRUE(ComprobarFormatoCIM(u"20SP"));
}

TEST(FormatoCIM, ALongCodeEndsInTheCheckLetterOfItsFirstSeven) {
    EXPECT_TRUE(ComprobarFormatoCIM(u"20ES123YY"));
    EXPECT_FALSE(ComprobarFormatoCIM(u"20ES123YZ"));
}
