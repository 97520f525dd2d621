#include "core/copies/NombreDeCopia.h"

#include "tests/support/PruebaDeCopias.h"

using namespace Qt::StringLiterals;

namespace {

class NombreDeCopiaTest : public PruebaDeCopias {
  protected:
    [[nodiscard]] int ErrorEn(const QString& carpeta, const QString& nombre) const {
        return NumeroDelError([&] { ExigirDestino(carpeta, nombre, copias(), {vivo(), almacen.mdblec()}); });
    }
    [[nodiscard]] int Error(const QString& nombre) const { return ErrorEn(copias(), nombre); }
};

}  // namespace

TEST_F(NombreDeCopiaTest, ANameGetsItsEndingUnlessItHasIt) {
    EXPECT_EQ(DestinoDeCopia(copias(), u"copia"_s), copias() + u"/copia.mdb"_s);
    EXPECT_EQ(DestinoDeCopia(copias(), u"  copia 1.5 "_s), copias() + u"/copia 1.5.mdb"_s);
    EXPECT_EQ(DestinoDeCopia(copias(), u"COPIA.MDB"_s), copias() + u"/COPIA.MDB"_s);
    EXPECT_EQ(DestinoDeCopia(copias(), u"копия"_s), copias() + u"/копия.mdb"_s);
}

TEST_F(NombreDeCopiaTest, ANameThatOneOfTheSystemsDoesNotTakeIsRefused) {
    for (const QString& nombre : {u""_s, u"  "_s, u"a:b"_s, u"a/b"_s, u"a\\b"_s, u"a*"_s, u"a?"_s, u"<a>"_s,
                                  u"\"a\""_s, u"a|b"_s, u"a\nb"_s, u"CON"_s, u"nul.mdb"_s, u"Lpt1.x"_s}) {
        EXPECT_EQ(Error(nombre), 75) << nombre.toStdString();
    }
    EXPECT_EQ(Error(u"CONTABLE"_s), 0);
}

TEST_F(NombreDeCopiaTest, TheSuggestedFolderIsMadeAndAnotherOneHasToBeThere) {
    ASSERT_TRUE(QDir(copias()).removeRecursively());
    EXPECT_EQ(Error(u"a"_s), 0);
    EXPECT_TRUE(QDir(copias()).exists());
    EXPECT_EQ(ErrorEn(almacen.Carpeta() + u"/falta"_s, u"a"_s), 76);
    EXPECT_FALSE(QDir(almacen.Carpeta() + u"/falta"_s).exists());
    EXPECT_EQ(ErrorEn(QString(), u"a"_s), 76);
    EXPECT_EQ(ErrorEn(u"backups"_s, u"a"_s), 76) << "folders are told whole";
    EXPECT_EQ(ErrorEn(vivo(), u"a"_s), 76);
}

TEST_F(NombreDeCopiaTest, NoCopyTakesThePlaceOfAFileOfTheProgramOrOfAFolder) {
    EXPECT_EQ(ErrorEn(almacen.mdbPath(), u"ZELTMOD.mdb"_s), 75);
    EXPECT_EQ(ErrorEn(almacen.mdbPath(), u"ZELTLEC"_s), 75);
    EXPECT_EQ(ErrorEn(almacen.mdbPath(), u"otra.mdb"_s), 0);
    ASSERT_TRUE(QFile::link(vivo(), copias() + u"/enlace.mdb"_s));
    EXPECT_EQ(Error(u"enlace"_s), 75);
    ASSERT_TRUE(QDir().mkdir(copias() + u"/carpeta.mdb"_s));
    EXPECT_EQ(Error(u"carpeta.mdb"_s), 3051);
}

TEST_F(NombreDeCopiaTest, AnExistingCopyIsFoundWithOrWithoutItsEnding) {
    EscribirFichero(copias() + u"/una.mdb"_s, "1");
    EscribirFichero(copias() + u"/otra"_s, "2");
    EXPECT_EQ(OrigenDeCopia(copias(), u"una.mdb"_s), copias() + u"/una.mdb"_s);
    EXPECT_EQ(OrigenDeCopia(copias(), u" una "_s), copias() + u"/una.mdb"_s);
    EXPECT_EQ(OrigenDeCopia(copias(), u"otra"_s), copias() + u"/otra"_s);
    EXPECT_EQ(OrigenDeCopia(copias(), u"falta"_s), copias() + u"/falta"_s);
}

TEST(FiltroDelDialogoTest, TheFilterComesInTheFormOfTheToolkit) {
    EXPECT_EQ(FiltroDelDialogo(u"archivos mdb (*.mdb;*.mdb)|*.mdb;mdb"_s), u"archivos mdb (*.mdb mdb)"_s);
    EXPECT_EQ(FiltroDelDialogo(u"a|*.a|b (*.b)|*.b"_s), u"a (*.a);;b (*.b)"_s);
    EXPECT_EQ(FiltroDelDialogo(QString()), QString());
}
