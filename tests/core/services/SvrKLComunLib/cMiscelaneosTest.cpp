#include "core/services/SvrKLComunLib/cMiscelaneos.h"

#include <array>

#include "tests/support/Imprimibles.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

namespace {

const QString kPersona = u"TRWAGMYFPDXBNJZSQVHLCKE"_s;
const QString kEntidad = u"JABCDEFGHI"_s;

bool Valida(const QString& nif) { return SvrKLComunLib::cMiscelaneos().ValidaNifCif(nif); }

QString Digitos(int numero, int largo) { return QString::number(numero).rightJustified(largo, u'0'); }

/// Control value of an entity, from the published worked form: even places as they are, odd ones doubled.
int ControlDeEntidad(const QString& siete) {
    constexpr std::array kDobles{0, 2, 4, 6, 8, 1, 3, 5, 7, 9};
    int suma = 0;
    for (int i = 0; i < 7; ++i) {
        const int d = siete.at(i).digitValue();
        suma += i % 2 == 0 ? kDobles.at(static_cast<std::size_t>(d)) : d;
    }
    return (10 - suma % 10) % 10;
}

QString NifDe(QChar clase, int siete) {
    const QString digitos = Digitos(siete, 7);
    if (u"KLM"_s.contains(clase)) {
        return clase + digitos + kPersona.at(siete % 23);
    }
    if (u"XYZ"_s.contains(clase)) {
        return clase + digitos + kPersona.at(((clase.unicode() - u'X') * 10'000'000 + siete) % 23);
    }
    if (clase.isDigit()) {
        const int numero = clase.digitValue() * 10'000'000 + siete;
        return Digitos(numero, 8) + kPersona.at(numero % 23);
    }
    const int control = ControlDeEntidad(digitos);
    const bool letra = u"NPQRSW"_s.contains(clase);
    return clase + digitos + (letra ? kEntidad.at(control) : QChar(u'0' + control));
}

const QString kClases = u"0123456789KLMXYZABCDEFGHJNPQRSUVW"_s;
const QString kAlfabeto = u"0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ"_s;

rc::Gen<QString> NifValido() {
    return rc::gen::map(
        rc::gen::pair(rc::gen::inRange(0, static_cast<int>(kClases.size())), rc::gen::inRange(0, 10'000'000)),
        [](const std::pair<int, int>& p) { return NifDe(kClases.at(p.first), p.second); });
}

}  // namespace

TEST(cMiscelaneosTest, NumbersOfNaturalPersons) {
    EXPECT_TRUE(Valida(u"12345678Z"_s));
    EXPECT_TRUE(Valida(u"00000000T"_s));
    EXPECT_TRUE(Valida(u"99999999R"_s));
    EXPECT_FALSE(Valida(u"12345678A"_s));
    EXPECT_FALSE(Valida(u"123456789"_s));
}

TEST(cMiscelaneosTest, NumbersOfPersonsWithoutIdentityCard) {
    EXPECT_TRUE(Valida(u"M1234567L"_s));
    EXPECT_TRUE(Valida(u"K1234567L"_s));
    EXPECT_TRUE(Valida(u"L1234567L"_s));
    EXPECT_FALSE(Valida(u"M1234567D"_s));
}

TEST(cMiscelaneosTest, NumbersOfForeigners) {
    EXPECT_TRUE(Valida(u"X1234567L"_s));
    EXPECT_TRUE(Valida(u"Y1234567X"_s));
    EXPECT_TRUE(Valida(u"Z1234567R"_s));
    EXPECT_FALSE(Valida(u"X1234567X"_s));
}

TEST(cMiscelaneosTest, TheControlOfAnEntityIsOfTheKindThatItsLetterDemands) {
    const QString digitos = u"1234567"_s;
    for (const QChar clase : u"ABCDEFGHJNPQRSUVW"_s) {
        const bool digito = !u"NPQRSW"_s.contains(clase);
        const bool letra = !u"ABEH"_s.contains(clase);
        EXPECT_EQ(Valida(clase + digitos + u'4'), digito) << clase.toLatin1();
        EXPECT_EQ(Valida(clase + digitos + u'D'), letra) << clase.toLatin1();
        EXPECT_FALSE(Valida(clase + digitos + u'5')) << clase.toLatin1();
    }
    EXPECT_TRUE(Valida(u"A58818501"_s));
}

TEST(cMiscelaneosTest, LettersThatBeginNoNumberAreFalse) {
    for (const QChar clase : u"IOTÑ"_s) {
        EXPECT_FALSE(Valida(clase + u"12345674"_s));
        EXPECT_FALSE(Valida(clase + u"1234567D"_s));
    }
}

TEST(cMiscelaneosTest, AnythingElseIsFalseAndNoFailure) {
    for (const QString& texto :
         {QString(), u" "_s, u"Z"_s, u"12345678z"_s, u"x1234567L"_s, u"1234567Z"_s, u"012345678Z"_s,
          u" 12345678Z"_s, u"12345678Z "_s, u"1234 678Z"_s, u"12.345.678Z"_s, u"12345678-Z"_s, u"-2345678Z"_s,
          u"1234567٨Z"_s, u"１２３４５６７８Ｚ"_s, u"A5881850"_s, QString(1000, u'1')}) {
        EXPECT_FALSE(Valida(texto)) << texto.toStdString();
    }
}

RC_GTEST_PROP(cMiscelaneosTest, EveryWellFormedNumberIsTrue, ()) {
    const QString nif = *NifValido();
    RC_ASSERT(Valida(nif));
    RC_ASSERT(!Valida(nif.toLower()));
    RC_ASSERT(!Valida(nif + u' '));
    RC_ASSERT(!Valida(nif.chopped(1)));
}

// The first letter of an entity enters no control, and where either kind of control goes, digit and letter
// stand for the same value.
RC_GTEST_PROP(cMiscelaneosTest, OneWrongDigitOrControlIsFalse, ()) {
    const QString nif = *NifValido();
    const auto lugar = *rc::gen::inRange(1, 9);
    const QChar otro = kAlfabeto.at(*rc::gen::inRange(0, static_cast<int>(kAlfabeto.size())));
    const bool gemelo = lugar == 8 && u"CDFGJUV"_s.contains(nif.at(0)) &&
                        otro == kEntidad.at(ControlDeEntidad(nif.mid(1, 7)));
    RC_PRE(otro != nif.at(lugar) && !gemelo);
    QString roto = nif;
    roto[lugar] = otro;
    RC_ASSERT(!Valida(roto));
}

RC_GTEST_PROP(cMiscelaneosTest, AWrongFirstDigitOrLetterOfAPersonIsFalse, ()) {
    const QString nif = *rc::gen::suchThat(
        NifValido(), [](const QString& n) { return n.at(0).isDigit() || u"XYZ"_s.contains(n.at(0)); });
    const QChar otro = (nif.at(0).isDigit() ? u"0123456789"_s : u"XYZ"_s)
                           .at(*rc::gen::inRange(0, nif.at(0).isDigit() ? 10 : 3));
    RC_PRE(otro != nif.at(0));
    RC_ASSERT(!Valida(otro + nif.mid(1)));
}

RC_GTEST_PROP(cMiscelaneosTest, AnyTextIsAnsweredWithoutFailure, (const std::u16string& texto)) {
    const QString nif = QString::fromStdU16String(texto);
    RC_ASSERT(!Valida(nif) || nif.size() == 9);
}
