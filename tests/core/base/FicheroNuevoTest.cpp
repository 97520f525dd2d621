#include "core/base/FicheroNuevo.h"

#include <QDir>
#include <QTemporaryDir>

#include "tests/support/DiscoLleno.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/MascaraDePermisos.h"

using namespace Qt::StringLiterals;

namespace {

class FicheroNuevoTest : public testing::Test {
  protected:
    /// Names of all files of the folder, hidden ones too.
    [[nodiscard]] QStringList Ficheros() const {
        return QDir(carpeta.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    QString Guardar(const QByteArray& contenido) const {
        return GuardarFicheroNuevo(carpeta.path(), u"a"_s, u".pdf"_s, contenido);
    }
    static QString GuardarEn(const QString& otra) {
        return GuardarFicheroNuevo(otra, u"a"_s, u".pdf"_s, "contenido");
    }

    QTemporaryDir carpeta;
};

}  // namespace

TEST_F(FicheroNuevoTest, ItHasItsNameAndItsContentsAndNothingElseIsLeft) {
    EXPECT_EQ(Guardar("contenido"), carpeta.filePath(u"a.pdf"_s));
    EXPECT_EQ(Ficheros(), QStringList{u"a.pdf"_s});
    EXPECT_EQ(LeerFichero(carpeta.filePath(u"a.pdf"_s)), "contenido");
}

TEST_F(FicheroNuevoTest, AFileThatIsThereIsNeverReplaced) {
    for (const char* contenido : {"uno", "dos", "tres"}) {
        Guardar(contenido);
    }
    EXPECT_EQ(Ficheros(), (QStringList{u"a (2).pdf"_s, u"a (3).pdf"_s, u"a.pdf"_s}));
    EXPECT_EQ(LeerFichero(carpeta.filePath(u"a.pdf"_s)), "uno");
    EXPECT_EQ(LeerFichero(carpeta.filePath(u"a (3).pdf"_s)), "tres");
}

TEST_F(FicheroNuevoTest, NeitherIsALinkThatLeadsNowhere) {
    ASSERT_TRUE(QFile::link(carpeta.filePath(u"no_existe"_s), carpeta.filePath(u"a.pdf"_s)));
    EXPECT_EQ(Guardar("uno"), carpeta.filePath(u"a (2).pdf"_s));
}

TEST_F(FicheroNuevoTest, AMissingFolderIsMade) {
    const QString destino = carpeta.filePath(u"uno/dos"_s);
    EXPECT_EQ(GuardarEn(destino), destino + u"/a.pdf"_s);
}

TEST_F(FicheroNuevoTest, AFolderInWhichNothingCouldBeWrittenIsNotLeft) {
    {
        const DiscoLleno lleno(1);
        EXPECT_THROW(GuardarEn(carpeta.filePath(u"uno/dos"_s)), ErrorZT);
    }
    EXPECT_FALSE(QDir(carpeta.filePath(u"uno"_s)).exists());
}

TEST_F(FicheroNuevoTest, AFolderThatCannotBeMadeOrWrittenRaises) {
    EscribirFichero(carpeta.filePath(u"fichero"_s), "x");
    const QString imposible = carpeta.filePath(u"fichero/carpeta"_s);
    EXPECT_EQ(NumeroDelError([&] { GuardarEn(imposible); }), 76);
    EXPECT_TRUE(DescripcionDelError([&] { GuardarEn(imposible); }).contains(imposible));
    // Nobody, not even the administrator, makes a file there.
    EXPECT_EQ(NumeroDelError([] { GuardarEn(u"/proc/self"_s); }), 75);
    EXPECT_TRUE(DescripcionDelError([] { GuardarEn(u"/proc/self"_s); }).contains(u"/proc/self/a.pdf"));
}

TEST_F(FicheroNuevoTest, ItIsAsReadableAsAnyOtherFileOfTheUser) {
    EscribirFichero(carpeta.filePath(u"otro"_s), "x");
    EXPECT_EQ(QFile::permissions(Guardar("contenido")), QFile::permissions(carpeta.filePath(u"otro"_s)));
}

TEST_F(FicheroNuevoTest, WhatAKilledProcessLeftGoesWithTheNextOneOfThatName) {
    EscribirFichero(carpeta.filePath(u"a.pdf.AbCdEf.parcial"_s), "x");
    EscribirFichero(carpeta.filePath(u"b.pdf.AbCdEf.parcial"_s), "x");
    Guardar("contenido");
    EXPECT_EQ(Ficheros(), (QStringList{u"a.pdf"_s, u"b.pdf.AbCdEf.parcial"_s}));
}

TEST_F(FicheroNuevoTest, ItFollowsTheSettingsOfTheUser) {
    for (const mode_t mascara : {mode_t{0}, mode_t{027}, mode_t{077}}) {
        const MascaraDePermisos permisos(mascara);
        EXPECT_EQ(PermisosDe(Guardar("contenido")), 0666U & ~mascara);
    }
}

TEST_F(FicheroNuevoTest, AFileThatIsPutInThePlaceOfAnotherKeepsItsRights) {
    const QString ruta = carpeta.filePath(u"a.htm"_s);
    ReponerFichero(ruta, "uno");
    QFile::setPermissions(ruta, QFile::ReadOwner | QFile::WriteOwner);
    ReponerFichero(ruta, "dos");
    EXPECT_EQ(LeerFichero(ruta), "dos");
    EXPECT_EQ(PermisosDe(ruta), 0600U);
    EXPECT_EQ(Ficheros(), QStringList{u"a.htm"_s});
}

TEST_F(FicheroNuevoTest, NamesCanBeMadeSureOfInAnyFolder) {
    Guardar("contenido");
    AsegurarFicherosNuevos(carpeta.path());
    AsegurarFicherosNuevos(carpeta.filePath(u"no_existe"_s));
    EXPECT_EQ(Ficheros(), QStringList{u"a.pdf"_s});
}

TEST_F(FicheroNuevoTest, AFullDiskRaisesAndLeavesNothing) {
    const auto guardar = [this] { Guardar(QByteArray(100'000, 'x')); };
    int numero = 0;
    QString descripcion;
    {
        const DiscoLleno lleno(10'000);
        numero = NumeroDelError(guardar);
        descripcion = DescripcionDelError(guardar);
    }
    EXPECT_EQ(numero, 57);
    EXPECT_TRUE(descripcion.contains(u"a.pdf"));
    EXPECT_TRUE(Ficheros().isEmpty());
}
