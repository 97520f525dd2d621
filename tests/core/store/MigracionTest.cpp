#include "core/store/Migracion.h"

#include <QFile>
#include <array>

#include "core/store/Integridad.h"
#include "tests/support/AlmacenTemporal.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

// A later version as it might be: the first step is the one in force.
const std::array kPasosFuturos{
    PasosDelUsuario().front(),
    PasoDeEsquema{2, "ALTER TABLE T00_GENERAL ADD COLUMN T00_NUEVA INTEGER NOT NULL DEFAULT 3"},
    PasoDeEsquema{3, "UPDATE T00_GENERAL SET T00_NUEVA = T00_NUEVA + 1"}};

constexpr std::array kPasosQueFallan{
    PasoDeEsquema{2, "CREATE TABLE T99 (a) STRICT"},
    PasoDeEsquema{2, "CREATE TABLE T98 (a INTEGER) STRICT; INSERT INTO T97 VALUES (1)"}};

}  // namespace

TEST(MigracionTest, StepsAboveTheVersionRunInOrderAndThoseBelowDoNot) {
    const AlmacenTemporal almacen;
    auto conexion = almacen.Usuario();
    MigrarEsquema(*conexion, kPasosFuturos);
    EXPECT_EQ(conexion->Version(), 3);
    EXPECT_EQ(conexion->Base().execAndGet("SELECT T00_NUEVA FROM T00_GENERAL").getInt(), 4);
}

TEST(MigracionTest, AStepThatFailsLeavesTheStoreAtItsVersion) {
    const AlmacenTemporal almacen;
    const QByteArray antes = LeerFichero(almacen.mdbmod());
    EXPECT_THROW(MigrarEsquema(*almacen.Usuario(), kPasosQueFallan), SQLite::Exception);
    CerrarAlmacenes();
    EXPECT_EQ(LeerFichero(almacen.mdbmod()), antes);
}

TEST(MigracionTest, AStoreThatAppearsMeanwhileIsNotReplaced) {
    const AlmacenTemporal almacen;
    CerrarAlmacenes();
    EscribirFichero(almacen.mdbmod(), "aparecido");
    CrearAlmacenDeUsuario(almacen.mdbmod());
    EXPECT_EQ(LeerFichero(almacen.mdbmod()), "aparecido");
    EXPECT_EQ(QDir(almacen.mdbPath()).entryList(QDir::Files).size(), 2) << "no temporary file stays behind";
}

TEST(MigracionTest, AStoreThatCannotBeMadeIsToldWithItsName) {
    const AlmacenTemporal almacen;
    EXPECT_EQ(NumeroDelError([&] { CrearAlmacenDeUsuario(almacen.mdbmod() + u"/x.mdb"_s); }), 76);
}

TEST(MigracionTest, TheStepsEndAtTheVersionOfTheProgram) {
    qint32 anterior = 0;
    for (const PasoDeEsquema& paso : PasosDelUsuario()) {
        EXPECT_EQ(paso.hasta, anterior + 1);
        anterior = paso.hasta;
    }
    EXPECT_EQ(anterior, kVersionUsuario);
}

TEST(MigracionTest, AFreshStoreIsSound) {
    const AlmacenTemporal almacen;
    EXPECT_EQ(NumeroDelError([&] { ComprobarIntegridad(*almacen.Usuario()); }), 0);
}
