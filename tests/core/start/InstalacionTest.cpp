#include "core/start/Instalacion.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>

#include "core/store/DatosGenerales.h"
#include "tests/support/CambiosDeReferencia.h"
#include "tests/support/EntornoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class InstalacionTest : public EntornoDePrueba {
  protected:
    void SetUp() override {
        EntornoDePrueba::SetUp();
        QDir().mkpath(Ruta(u"origen/Tablas"_s));
        QDir().mkpath(Ruta(u"origen/Ayuda/Ayuda"_s));
        QDir().mkpath(Ruta(u"bin"_s));
        ASSERT_TRUE(QFile::copy(QStringLiteral(ZELT_REFERENCIA), Ruta(u"origen/Tablas/ZELTLEC.mdb"_s)));
        Escribir(u"origen/Ayuda/Ayuda/cap.htm"_s, "ayuda");
    }

    QString Ruta(const QString& relativa) const { return carpeta.filePath(relativa); }

    void Escribir(const QString& relativa, const QByteArray& contenido) const {
        QFile fichero(Ruta(relativa));
        ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
        fichero.write(contenido);
    }

    QByteArray Leer(const QString& relativa) const {
        QFile fichero(Ruta(relativa));
        return fichero.open(QIODevice::ReadOnly) ? fichero.readAll() : QByteArray("falta");
    }

    void Preparar() const { PrepararCarpetaPrograma(Ruta(u"bin"_s), Ruta(u"casa"_s), Ruta(u"origen"_s)); }
};

}  // namespace

TEST_F(InstalacionTest, TheRootIsCutInFrontOfTheWordWhereverItStands) {
    EXPECT_EQ(RaizDeDatos(u"/prog/ZELT"_s), u"/prog/ZELT"_s);
    EXPECT_EQ(RaizDeDatos(u"C:\\Prog\\Cliente\\Bin"_s), u"C:\\Prog"_s);
    EXPECT_EQ(RaizDeDatos(u"/prog/misclientes/bin"_s), u"/prog/mi"_s);
    EXPECT_EQ(RaizDeDatos(u"/a/CLIENTE/b/cliente"_s), u"/a"_s);
    EXPECT_EQ(NumeroDelError([] { RaizDeDatos(u"cliente/bin"_s); }), 5);
}

TEST_F(InstalacionTest, AProgramFolderWithTablasIsUsedAsItStands) {
    QDir().mkpath(Ruta(u"bin/Tablas"_s));
    Preparar();
    EXPECT_EQ(Entorno().CarpetaPrograma, QDir::toNativeSeparators(Ruta(u"bin"_s)));
    EXPECT_FALSE(Entorno().CarpetaDeUsuario);
    EXPECT_FALSE(QFileInfo::exists(Ruta(u"casa"_s)));
}

TEST_F(InstalacionTest, AClientFolderIsUsedWhenItsParentHoldsTablas) {
    QDir().mkpath(Ruta(u"red/Tablas"_s));
    QDir().mkpath(Ruta(u"red/cliente/bin"_s));
    PrepararCarpetaPrograma(Ruta(u"red/cliente/bin"_s), Ruta(u"casa"_s), Ruta(u"origen"_s));
    EXPECT_FALSE(Entorno().CarpetaDeUsuario);
    EXPECT_TRUE(QFileInfo::exists(Ruta(u"red/Tablas/ZELTLEC.mdb"_s)));
}

TEST_F(InstalacionTest, OtherwiseTheUsersFolderIsLaidOutAtTheFirstStart) {
    Preparar();
    EXPECT_TRUE(Entorno().CarpetaDeUsuario);
    EXPECT_EQ(Entorno().CarpetaPrograma, QDir::toNativeSeparators(Ruta(u"casa"_s)));
    EXPECT_TRUE(QFileInfo(Ruta(u"casa/backups"_s)).isDir());
    EXPECT_EQ(Leer(u"casa/Ayuda/Ayuda/cap.htm"_s), QByteArray("ayuda"));
    EXPECT_EQ(Leer(u"casa/Tablas/ZELTLEC.mdb"_s), Leer(u"origen/Tablas/ZELTLEC.mdb"_s));
    EXPECT_FALSE(QFileInfo::exists(Ruta(u"casa/Tablas/ZELTMOD.mdb"_s)));
}

TEST_F(InstalacionTest, TheUsersStoreIsNeverTouched) {
    Preparar();
    Escribir(u"casa/Tablas/ZELTMOD.mdb"_s, "datos del usuario");
    Escribir(u"origen/Tablas/ZELTMOD.mdb"_s, "otros datos");
    Preparar();
    EXPECT_EQ(Leer(u"casa/Tablas/ZELTMOD.mdb"_s), QByteArray("datos del usuario"));
}

TEST_F(InstalacionTest, TheReferenceStoreIsCopiedAnewOnlyWhenTheInstalledOneIsNewer) {
    Preparar();
    const QString propia = Ruta(u"casa/Tablas/ZELTLEC.mdb"_s);
    const QByteArray instalada = Leer(u"casa/Tablas/ZELTLEC.mdb"_s);
    PonerVersionDeDatos(propia, 0);
    EXPECT_LT(VersionDeReferencia(propia), VersionDeReferencia(Ruta(u"origen/Tablas/ZELTLEC.mdb"_s)));
    Preparar();
    EXPECT_EQ(Leer(u"casa/Tablas/ZELTLEC.mdb"_s), instalada);

    PonerVersionDeDatos(propia, 99);
    const QByteArray masNueva = Leer(u"casa/Tablas/ZELTLEC.mdb"_s);
    Preparar();
    EXPECT_EQ(Leer(u"casa/Tablas/ZELTLEC.mdb"_s), masNueva);
}

TEST_F(InstalacionTest, AReferenceStoreThatIsNoneOrOfANewerProgramIsNamedAndLeftAsItIs) {
    Preparar();
    const QString propia = Ruta(u"casa/Tablas/ZELTLEC.mdb"_s);
    PonerVersionDeEsquema(propia, 99);
    const QByteArray masNueva = Leer(u"casa/Tablas/ZELTLEC.mdb"_s);
    EXPECT_EQ(NumeroDelError([this] { Preparar(); }), 3340);
    EXPECT_EQ(Leer(u"casa/Tablas/ZELTLEC.mdb"_s), masNueva);

    const QByteArray ajeno(4096, 'x');
    Escribir(u"casa/Tablas/ZELTLEC.mdb"_s, ajeno);
    EXPECT_EQ(NumeroDelError([this] { Preparar(); }), 3343);
    EXPECT_TRUE(DescripcionDelError([this] { Preparar(); }).contains(QDir::toNativeSeparators(propia)));
    EXPECT_EQ(Leer(u"casa/Tablas/ZELTLEC.mdb"_s), ajeno);
}

TEST_F(InstalacionTest, ATopicOfTheHelpThatHasChangedIsCopiedAnewWhateverItsTime) {
    Preparar();
    Escribir(u"origen/Ayuda/Ayuda/cap.htm"_s, "otra ayuda");
    QFile fichero(Ruta(u"origen/Ayuda/Ayuda/cap.htm"_s));
    ASSERT_TRUE(fichero.open(QIODevice::ReadWrite));
    ASSERT_TRUE(
        fichero.setFileTime(QDateTime(QDate(2001, 1, 1), QTime(0, 0)), QFileDevice::FileModificationTime));
    fichero.close();
    Preparar();
    EXPECT_EQ(Leer(u"casa/Ayuda/Ayuda/cap.htm"_s), QByteArray("otra ayuda"));
}

TEST_F(InstalacionTest, TheHelpIsLookedThroughOnlyWhenItsListOfChecksumsHasChanged) {
    Escribir(u"origen/Ayuda/sha256.txt"_s, "suma de la primera");
    Preparar();
    EXPECT_EQ(Leer(u"casa/Ayuda/sha256.txt"_s), QByteArray("suma de la primera"));

    Escribir(u"casa/Ayuda/Ayuda/cap.htm"_s, "del usuario");
    Preparar();
    EXPECT_EQ(Leer(u"casa/Ayuda/Ayuda/cap.htm"_s), QByteArray("del usuario"));

    Escribir(u"origen/Ayuda/sha256.txt"_s, "suma de la segunda");
    Preparar();
    EXPECT_EQ(Leer(u"casa/Ayuda/Ayuda/cap.htm"_s), QByteArray("ayuda"));
    EXPECT_EQ(Leer(u"casa/Ayuda/sha256.txt"_s), QByteArray("suma de la segunda"));
}

TEST_F(InstalacionTest, ACopyOfTheHelpThatIsCutShortIsMadeAgainAtTheNextStart) {
    Escribir(u"origen/Ayuda/sha256.txt"_s, "suma");
    QDir().mkpath(Ruta(u"casa/Ayuda"_s));
    Escribir(u"casa/Ayuda/Ayuda"_s, "un fichero en el lugar de la carpeta");
    EXPECT_EQ(NumeroDelError([this] { Preparar(); }), 75);
    EXPECT_FALSE(QFileInfo::exists(Ruta(u"casa/Ayuda/sha256.txt"_s)));

    QFile::remove(Ruta(u"casa/Ayuda/Ayuda"_s));
    Preparar();
    EXPECT_EQ(Leer(u"casa/Ayuda/Ayuda/cap.htm"_s), QByteArray("ayuda"));
}

TEST_F(InstalacionTest, AFolderThatCannotBeMadeIsNamedWithTheCause) {
    Escribir(u"casa"_s, "un fichero en el lugar de la carpeta");
    const QString descripcion = DescripcionDelError([this] { Preparar(); });
    EXPECT_TRUE(descripcion.contains(QDir::toNativeSeparators(Ruta(u"casa/Tablas"_s))));
    EXPECT_EQ(NumeroDelError([this] { Preparar(); }), 75);
    EXPECT_EQ(Leer(u"casa"_s), QByteArray("un fichero en el lugar de la carpeta"));
}
