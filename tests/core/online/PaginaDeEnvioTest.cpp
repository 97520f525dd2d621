#include "core/online/PaginaDeEnvio.h"

#include <QFileInfo>

#include "tests/support/EntornoDePrueba.h"
#include "tests/support/FicherosDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class PaginaDeEnvioTest : public EntornoDePrueba {
  protected:
    [[nodiscard]] QString Ruta() const { return carpeta.filePath(u"temphtm.HTM"_s); }
};

}  // namespace

TEST_F(PaginaDeEnvioTest, ThePageIsOneStringAroundTheAddress) {
    EXPECT_EQ(PaginaDeEnvio(u"https://a.example/z?x=1&y=2"_s),
              u"<HTML>  <BODY ONLOAD='document.formulario.submit();'>  <FORM NAME='formulario' "
              "action='https://a.example/z?x=1&y=2' method=post>  </FORM></BODY> </HTML>"_s);
}

TEST_F(PaginaDeEnvioTest, NothingIsEscapedSoAnApostropheBreaksTheAttribute) {
    EXPECT_TRUE(PaginaDeEnvio(u"a'b<\">&c"_s).contains(u"action='a'b<\">&c' method=post>"));
}

TEST_F(PaginaDeEnvioTest, TheFileHoldsTheStringInTheEightBitCodePageAndNothingElse) {
    EXPECT_EQ(EscribirPaginaDeEnvio(u"http://a.example/año€"_s), QDir::toNativeSeparators(Ruta()));
    EXPECT_EQ(LeerFichero(Ruta()),
              QByteArray("<HTML>  <BODY ONLOAD='document.formulario.submit();'>  <FORM NAME='formulario' "
                         "action='http://a.example/a\xF1o\x80' method=post>  </FORM></BODY> </HTML>"));
}

TEST_F(PaginaDeEnvioTest, TheSecondPageTakesThePlaceOfTheFirst) {
    EscribirPaginaDeEnvio(u"https://a.example/"_s + QString(500, u'x'));
    EscribirPaginaDeEnvio(u"https://b.example/"_s);
    EXPECT_EQ(QString::fromLatin1(LeerFichero(Ruta())), PaginaDeEnvio(u"https://b.example/"_s));
    EXPECT_EQ(QDir(carpeta.path()).entryList({u"temphtm*"_s}, QDir::Files), QStringList{u"temphtm.HTM"_s});
}

TEST_F(PaginaDeEnvioTest, AnAddressOutsideTheCodePageIsAnErrorThatNamesTheCharacter) {
    EscribirPaginaDeEnvio(u"https://a.example/"_s);
    EXPECT_EQ(NumeroDelError([] { EscribirPaginaDeEnvio(u"https://a.example/日"_s); }), 20001);
    EXPECT_FALSE(QFile::exists(Ruta())) << "the page before it is deleted first";
}

TEST_F(PaginaDeEnvioTest, AFolderThatCannotBeWrittenRaisesWithTheNameOfTheFile) {
    Entorno().CarpetaPrograma = QDir::toNativeSeparators(carpeta.filePath(u"no/esta"_s));
    EXPECT_EQ(NumeroDelError([] { EscribirPaginaDeEnvio(u"https://a.example/"_s); }), 75);
    EXPECT_TRUE(
        DescripcionDelError([] { EscribirPaginaDeEnvio(u"https://a.example/"_s); }).contains(u"temphtm.HTM"));
}

TEST_F(PaginaDeEnvioTest, APageThatCannotBeDeletedRaises) {
    ASSERT_TRUE(QDir().mkpath(Ruta() + u"/dentro"_s));
    EXPECT_EQ(NumeroDelError([] { EscribirPaginaDeEnvio(u"https://a.example/"_s); }), 75);
}

TEST_F(PaginaDeEnvioTest, ALinkUnderTheNameIsNotFollowed) {
    const QString fuera = carpeta.filePath(u"fuera.txt"_s);
    ASSERT_TRUE(QFile::link(fuera, Ruta()));
    EscribirPaginaDeEnvio(u"https://a.example/"_s);
    EXPECT_FALSE(QFile::exists(fuera));
    EXPECT_FALSE(QFileInfo(Ruta()).isSymLink());
}
