#include "core/base/FicheroProvisional.h"

#include <QDir>
#include <QTemporaryDir>

#include "core/base/CarpetaNueva.h"
#include "core/base/plataforma/SistemaFicheros.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/MascaraDePermisos.h"

using namespace Qt::StringLiterals;

namespace {

constexpr NumError kOtro = NumError::NoExisteRuta;

class FicheroProvisionalTest : public testing::Test {
  protected:
    [[nodiscard]] QString Ruta(const QString& nombre) const { return carpeta.filePath(nombre); }
    [[nodiscard]] QStringList Ficheros() const {
        return QDir(carpeta.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    /// Leaves what a killed process would leave.
    void Dejar(const QString& nombre) const {
        EscribirFichero(Ruta(nombre), "datos del usuario");
        EscribirFichero(Ruta(nombre + u"-journal"_s), "diario");
    }

    QTemporaryDir carpeta;
};

}  // namespace

TEST_F(FicheroProvisionalTest, ItIsEmptyAndForTheUserAloneWhateverTheSettings) {
    for (const mode_t mascara : {mode_t{0}, mode_t{022}, mode_t{077}}) {
        const MascaraDePermisos permisos(mascara);
        const FicheroProvisional privado(Ruta(u"a.mdb"_s));
        EXPECT_EQ(PermisosDe(privado.Ruta()), 0600U);
        EXPECT_EQ(LeerFichero(privado.Ruta()), QByteArray());
        const FicheroProvisional documento(Ruta(u"a.pdf"_s), Lectores::LosHabituales);
        EXPECT_EQ(PermisosDe(documento.Ruta()), 0666U & ~mascara);
    }
    EXPECT_EQ(Ficheros(), QStringList());
}

TEST_F(FicheroProvisionalTest, WhatKilledProcessesLeftInAFolderGoesWhateverItsAge) {
    Dejar(u"ZELTMOD.mdb.AbCdEf.parcial"_s);
    Dejar(u"ZELTMod_bak.mdb.sha256.GhIjKl.parcial"_s);
    EscribirFichero(Ruta(u"notas.parcial"_s), "del usuario");
    EscribirFichero(Ruta(u"ZELTMOD.mdb"_s), "del usuario");
    QuitarProvisionales(carpeta.path());
    EXPECT_EQ(Ficheros(), (QStringList{u"ZELTMOD.mdb"_s, u"notas.parcial"_s}));
}

TEST_F(FicheroProvisionalTest, WhatAProgramWorksOnStays) {
    const FicheroProvisional enUso(Ruta(u"ZELTMOD.mdb"_s));
    EscribirFichero(enUso.Ruta(), "a medias");
    QuitarProvisionales(carpeta.path());
    const FicheroProvisional otro(Ruta(u"ZELTMOD.mdb"_s));
    EXPECT_EQ(LeerFichero(enUso.Ruta()), "a medias");
    EXPECT_EQ(Ficheros().size(), 2);
}

TEST_F(FicheroProvisionalTest, ALinkOfThatNameIsNotFollowed) {
    EscribirFichero(Ruta(u"ajeno"_s), "ajeno");
    ASSERT_TRUE(QFile::link(Ruta(u"ajeno"_s), Ruta(u"ZELTMOD.mdb.AbCdEf.parcial"_s)));
    QuitarProvisionales(carpeta.path());
    EXPECT_EQ(LeerFichero(Ruta(u"ajeno"_s)), "ajeno");
}

TEST_F(FicheroProvisionalTest, OnlyOneCanHaveTheMarkAndItGoesWithItsOwner) {
    EscribirFichero(Ruta(u"a"_s), "x");
    {
        const RetencionDeFichero una(Ruta(u"a"_s));
        EXPECT_TRUE(una.Conseguida());
        EXPECT_FALSE(RetencionDeFichero(Ruta(u"a"_s)).Conseguida());
    }
    EXPECT_TRUE(RetencionDeFichero(Ruta(u"a"_s)).Conseguida());
    EXPECT_FALSE(RetencionDeFichero(Ruta(u"falta"_s)).Conseguida());
}

TEST_F(FicheroProvisionalTest, AFolderOfDataIsForTheUserAloneAndThoseAboveItFollowTheSettings) {
    for (const mode_t mascara : {mode_t{0}, mode_t{022}, mode_t{0177}}) {
        const MascaraDePermisos permisos(mascara);
        const QString privada = Ruta(u"de%1"_s.arg(mascara));
        CrearCarpeta(privada, kOtro, Lectores::ElUsuario);
        EXPECT_EQ(PermisosDe(privada), 0700U);
    }
    const MascaraDePermisos permisos(022);
    CrearCarpeta(Ruta(u"uno/dos"_s), kOtro, Lectores::ElUsuario);
    EXPECT_EQ(PermisosDe(Ruta(u"uno"_s)), 0755U);
    EXPECT_EQ(PermisosDe(Ruta(u"uno/dos"_s)), 0700U);
}

TEST_F(FicheroProvisionalTest, AFolderThatIsThereStaysAsItIsAndOneThatCannotBeMadeIsTold) {
    CrearCarpeta(Ruta(u"uno"_s), kOtro);
    const mode_t antes = PermisosDe(Ruta(u"uno"_s));
    CrearCarpeta(Ruta(u"uno/"_s), kOtro, Lectores::ElUsuario);
    EXPECT_EQ(PermisosDe(Ruta(u"uno"_s)), antes);
    EscribirFichero(Ruta(u"fichero"_s), "x");
    EXPECT_EQ(DescripcionDelError([this] { CrearCarpeta(Ruta(u"fichero/dos"_s), kOtro); }),
              u"No se encontró la ruta de acceso: "_s + Ruta(u"fichero/dos"_s) +
                  u". Ya existe algo con ese nombre."_s);
}
