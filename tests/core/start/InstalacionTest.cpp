#include "core/start/Instalacion.h"

#include <pwd.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <climits>
#include <string>

#include "core/base/FicheroProvisional.h"
#include "core/start/plataforma/CarpetaPersonal.h"
#include "core/store/DatosGenerales.h"
#include "tests/support/CambiosDeReferencia.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/MascaraDePermisos.h"
#include "tests/support/VariableDeEntorno.h"

using namespace Qt::StringLiterals;

namespace {

/// What has been made to reach the disk, by its path at that time.
QList<QByteArray>& Sincronizados() {
    static QList<QByteArray> rutas;
    return rutas;
}

}  // namespace

/// Stands before the system's own in this program.
extern "C" int fsync(int fichero) {
    std::array<char, PATH_MAX> ruta{};
    const std::string enlace = "/proc/self/fd/" + std::to_string(fichero);
    if (::readlink(enlace.c_str(), ruta.data(), ruta.size() - 1) > 0) {
        Sincronizados() += QByteArray(ruta.data());
    }
    return static_cast<int>(::syscall(SYS_fsync, fichero));
}

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

TEST_F(InstalacionTest, AReferenceStoreOfANewerProgramIsNamedAndLeftAsItIs) {
    Preparar();
    const QString propia = Ruta(u"casa/Tablas/ZELTLEC.mdb"_s);
    PonerVersionDeEsquema(propia, 99);
    const QByteArray masNueva = Leer(u"casa/Tablas/ZELTLEC.mdb"_s);
    EXPECT_EQ(NumeroDelError([this] { Preparar(); }), 3340);
    EXPECT_EQ(Leer(u"casa/Tablas/ZELTLEC.mdb"_s), masNueva);

    EXPECT_TRUE(DescripcionDelError([this] { Preparar(); }).contains(QDir::toNativeSeparators(propia)));
    EXPECT_TRUE(pantalla.plataforma.empty());
}

TEST_F(InstalacionTest, ADamagedReferenceStoreIsNamedSetAsideAsItIsAndCopiedAnew) {
    Preparar();
    const QByteArray entero = Leer(u"casa/Tablas/ZELTLEC.mdb"_s);
    const QList<QByteArray> danados{{},
                                    QByteArray(entero.size(), '\0'),
                                    entero.left(entero.size() / 2),
                                    entero.chopped(1),
                                    "esto no es un almacen de datos"};
    int apartados = 0;
    for (const QByteArray& danado : danados) {
        Escribir(u"casa/Tablas/ZELTLEC.mdb"_s, danado);
        pantalla.plataforma.clear();
        Preparar();
        ASSERT_EQ(pantalla.plataforma.size(), 1U) << danado.size();
        EXPECT_TRUE(pantalla.ultimoEsFallo);
        EXPECT_TRUE(pantalla.plataforma.front().contains(
            QDir::toNativeSeparators(Ruta(u"casa/Tablas/ZELTLEC.mdb"_s))));
        EXPECT_TRUE(pantalla.plataforma.front().contains(u"está dañado"_s));
        EXPECT_TRUE(pantalla.plataforma.front().contains(u"hondatuta dago"_s));
        EXPECT_EQ(Leer(u"casa/Tablas/ZELTLEC.mdb.%1.rechazado"_s.arg(++apartados)), danado);
        EXPECT_EQ(Leer(u"casa/Tablas/ZELTLEC.mdb"_s), entero);
    }
    pantalla.plataforma.clear();
    Preparar();
    EXPECT_TRUE(pantalla.plataforma.empty()) << "a sound one is not named";
}

TEST_F(InstalacionTest, AReferenceStoreThatHasLostItsVersionIsSetAsideAndCopiedAnew) {
    Preparar();
    const QString propia = Ruta(u"casa/Tablas/ZELTLEC.mdb"_s);
    const QByteArray entero = Leer(u"casa/Tablas/ZELTLEC.mdb"_s);
    PonerVersionDeEsquema(propia, 0);
    Preparar();
    EXPECT_EQ(pantalla.plataforma.size(), 1U);
    EXPECT_EQ(Leer(u"casa/Tablas/ZELTLEC.mdb"_s), entero);
}

TEST_F(InstalacionTest, WhereTheInstalledOneIsDamagedTooTheOneInUseStays) {
    Preparar();
    Escribir(u"casa/Tablas/ZELTLEC.mdb"_s, "texto");
    Escribir(u"origen/Tablas/ZELTLEC.mdb"_s, "texto");
    EXPECT_EQ(NumeroDelError([this] { Preparar(); }), 3343);
    EXPECT_EQ(Leer(u"casa/Tablas/ZELTLEC.mdb"_s), QByteArray("texto"));
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

TEST_F(InstalacionTest, FoldersOfDataAreForTheUserAloneWhateverTheSettings) {
    const MascaraDePermisos permisos(0);
    QDir().mkpath(Ruta(u"casa/Tablas"_s));
    Preparar();
    EXPECT_EQ(PermisosDe(Ruta(u"casa/Tablas"_s)), 0700U) << "one of a former version too";
    EXPECT_EQ(PermisosDe(Ruta(u"casa/backups"_s)), 0700U);
    EXPECT_EQ(PermisosDe(Ruta(u"casa/Ayuda"_s)), 0777U);
}

TEST_F(InstalacionTest, WhatKilledCopiesOfTheProgramLeftIsGoneAndWhatOneWorksOnStays) {
    Preparar();
    QDir().mkpath(Ruta(u"casa/backups/auto"_s));
    const QStringList restos{
        u"casa/Tablas/ZELTMOD.mdb.AbCdEf.parcial"_s, u"casa/backups/ZELTMod_bak.mdb.AbCdEf.parcial"_s,
        u"casa/backups/auto/ZELTMOD.mdb.AbCdEf.parcial"_s,
        u"casa/backups/auto/ZELTMOD.mdb.AbCdEf.parcial-journal"_s, u"casa/Declaran.txt.AbCdEf.parcial"_s};
    for (const QString& resto : restos) {
        Escribir(resto, "datos de un usuario");
    }
    const FicheroProvisional enUso(Ruta(u"casa/backups/auto/ZELTMOD.mdb"_s));
    Escribir(restos.at(2), "datos de un usuario");
    Preparar();
    for (const QString& resto : restos) {
        EXPECT_FALSE(QFileInfo::exists(Ruta(resto))) << resto.toStdString();
    }
    EXPECT_TRUE(QFileInfo::exists(enUso.Ruta()));
}

TEST_F(InstalacionTest, AFolderWhoseNameIsNotUtf8IsRefusedAndNothingIsMadeElsewhere) {
    const QByteArray casa = QFile::encodeName(carpeta.path()) + "/jos\xe9";
    ASSERT_EQ(::mkdir(casa.constData(), 0700), 0);
    const QStringList antes = QDir(carpeta.path()).entryList(QDir::AllEntries | QDir::Hidden);
    const VariableDeEntorno datos("XDG_DATA_HOME", {});
    const VariableDeEntorno personal("HOME", casa);
    EXPECT_EQ(NumeroDelError([] { PrepararCarpetaPrograma(); }), 75);
    EXPECT_TRUE(DescripcionDelError([] { PrepararCarpetaPrograma(); }).contains(u"no es UTF-8"_s));
    EXPECT_EQ(QDir(carpeta.path()).entryList(QDir::AllEntries | QDir::Hidden), antes);
    EXPECT_EQ(::rmdir(casa.constData()), 0) << "nothing was put into it either";
}

TEST_F(InstalacionTest, AProgramFolderWhoseNameIsNotUtf8IsRefusedAndTheUsersOneIsNotTakenInItsPlace) {
    const QString ilegible = QFile::decodeName(QFile::encodeName(carpeta.path()) + "/jos\xe9/bin");
    EXPECT_EQ(NumeroDelError([&] { PrepararCarpetaPrograma(ilegible, Ruta(u"casa"_s), Ruta(u"origen"_s)); }),
              75);
    EXPECT_FALSE(QFileInfo::exists(Ruta(u"casa"_s)));
}

TEST_F(InstalacionTest, WithoutAHomeFolderTheOneOfTheAccountIsTaken) {
    const VariableDeEntorno personal("HOME", {});
    AsegurarCarpetaPersonal();
    EXPECT_EQ(qgetenv("HOME"), QByteArray(::getpwuid(::getuid())->pw_dir));
    qputenv("HOME", "/la/del/usuario");
    AsegurarCarpetaPersonal();
    EXPECT_EQ(qgetenv("HOME"), QByteArray("/la/del/usuario"));
}

TEST_F(InstalacionTest, EverythingOfTheFirstStartIsOnDiskWithTheFoldersAboveIt) {
    Escribir(u"origen/Ayuda/sha256.txt"_s, "suma");
    Sincronizados().clear();
    PrepararCarpetaPrograma(Ruta(u"bin"_s), Ruta(u"nueva/casa"_s), Ruta(u"origen"_s));
    // The name of each new thing is on disk with the folder in which it stands.
    for (const QString& carpetaDeNombres :
         {carpeta.path(), Ruta(u"nueva"_s), Ruta(u"nueva/casa"_s), Ruta(u"nueva/casa/Tablas"_s),
          Ruta(u"nueva/casa/Ayuda"_s), Ruta(u"nueva/casa/Ayuda/Ayuda"_s)}) {
        EXPECT_TRUE(Sincronizados().contains(QFile::encodeName(carpetaDeNombres)))
            << carpetaDeNombres.toStdString();
    }
    for (const QString& fichero :
         {Ruta(u"nueva/casa/Tablas/ZELTLEC.mdb."_s), Ruta(u"nueva/casa/Ayuda/Ayuda/cap.htm."_s),
          Ruta(u"nueva/casa/Ayuda/sha256.txt."_s)}) {
        const bool visto =
            std::ranges::any_of(std::as_const(Sincronizados()), [&](const QByteArray& sincronizado) {
                return sincronizado.startsWith(QFile::encodeName(fichero));
            });
        EXPECT_TRUE(visto) << fichero.toStdString();
    }
}
