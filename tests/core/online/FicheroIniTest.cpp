#include "core/online/FicheroIni.h"

#include <QTemporaryDir>

#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

namespace {

class FicheroIniTest : public testing::Test {
  protected:
    [[nodiscard]] QString Ruta() const { return m_carpeta.filePath(u"version.ini"_s); }
    [[nodiscard]] QString Leer(const QByteArray& contenido, const char* clave = "clave") const {
        EscribirFichero(Ruta(), contenido);
        return FicheroIni(Ruta()).Leer("informacion", clave);
    }

  private:
    QTemporaryDir m_carpeta;
};

}  // namespace

TEST_F(FicheroIniTest, AValueIsFoundBySectionAndKeyInAnyCaseAndLineEnd) {
    EXPECT_EQ(Leer("[otra]\nclave=no\n[informacion]\nclave=si\n"), u"si"_s);
    EXPECT_EQ(Leer("[INFORMACION]\r\nClave = si\r\n"), u"si"_s);
    EXPECT_EQ(Leer("[informacion]\rCLAVE=si\r"), u"si"_s);
    EXPECT_EQ(Leer("[informacion]\nclave=si"), u"si"_s) << "without a last line end";
}

TEST_F(FicheroIniTest, WhatIsMissingIsTheEmptyText) {
    EXPECT_EQ(Leer(""), QString());
    EXPECT_EQ(Leer("[informacion]\notra=x\n"), QString());
    EXPECT_EQ(Leer("[informacion]\nclave=\n"), QString());
    EXPECT_EQ(Leer("[informacion]\nclave\n"), QString());
    EXPECT_EQ(Leer("; clave=x\n[informacion]\n;clave=x\n"), QString());
}

TEST_F(FicheroIniTest, OfWhatIsRepeatedTheFirstCounts) {
    EXPECT_EQ(Leer("[informacion]\nclave=una\nclave=dos\nCLAVE=tres\n"), u"una"_s);
    EXPECT_EQ(Leer("[informacion]\nclave=\nclave=dos\n"), QString());
    EXPECT_EQ(Leer("[informacion]\nclave=una\n[otra]\nclave=x\n[Informacion]\nclave=dos\n"), u"una"_s);
}

TEST_F(FicheroIniTest, ValuesComeOutAsWritten) {
    EXPECT_EQ(Leer("[informacion]\nclave=a, b; c = \"d\" # 'e'\n"), u"a, b; c = \"d\" # 'e'"_s);
    EXPECT_EQ(Leer("[informacion]\nclave=<b>a</b>&amp;%41\\n\n"), u"<b>a</b>&amp;%41\\n"_s);
    EXPECT_EQ(Leer("[informacion]\nclave=<<<FIN\nuna\nFIN\n"), u"<<<FIN"_s) << "values have one line";
}

TEST_F(FicheroIniTest, TheBytesAreThoseOfTheEightBitCodePage) {
    EXPECT_EQ(Leer("[informacion]\nclave=A\xF1o \x80 \x93si\x94\n"), u"Año € “si”"_s);
}

TEST_F(FicheroIniTest, AValueIsCutAtItsGreatestLength) {
    EXPECT_EQ(Leer("[informacion]\nclave=" + QByteArray(1023, 'x') + "\n").size(), 1023);
    EXPECT_EQ(Leer("[informacion]\nclave=" + QByteArray(50'000, 'x') + "\n").size(), 1023);
}

TEST_F(FicheroIniTest, AFileThatIsMissingOrTooLongIsNotRead) {
    EXPECT_EQ(NumeroDelError([this] { const FicheroIni ini(Ruta()); }), 53);
    EXPECT_EQ(Leer(QByteArray("[informacion]\nclave=si\n").leftJustified(65'536, ';')), u"si"_s);
    EXPECT_EQ(NumeroDelError(
                  [this] { (void)Leer(QByteArray("[informacion]\nclave=si\n").leftJustified(65'537, ';')); }),
              5);
}

TEST_F(FicheroIniTest, ZeroBytesEndTheFile) {
    EXPECT_EQ(Leer(QByteArray("[informacion]\nclave=si\n\0clave=no\n", 33)), u"si"_s);
    EXPECT_EQ(Leer(QByteArray("\0\0\0", 3)), QString());
}

RC_GTEST_FIXTURE_PROP(FicheroIniTest, AnyBytesAreReadWithoutFailure, (const std::string& bytes)) {
    const QString valor = Leer("[informacion]\nclave=" + QByteArray::fromStdString(bytes));
    RC_ASSERT(valor.size() <= FicheroIni::kLargoMaximo);
}

RC_GTEST_FIXTURE_PROP(FicheroIniTest, AnyPrintableTextWithoutBlanksAtItsEndsComesOutAsWritten, ()) {
    const auto letras = *rc::gen::container<std::string>(rc::gen::inRange<char>('!', '~'));
    const QByteArray texto = QByteArray::fromStdString(letras);
    RC_ASSERT(Leer("[informacion]\nclave=" + texto + "\n") == QString::fromLatin1(texto.left(1023)));
}
