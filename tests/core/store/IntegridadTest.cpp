#include "core/store/Integridad.h"

#include "core/services/RevisionDeFondo.h"
#include "tests/support/AlmacenTemporal.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kPagina = 4096;

/// A store with a declarant whose NIF stands in its table and in an index.
class IntegridadTest : public testing::Test {
  protected:
    IntegridadTest() {
        (void)GuardarDeclarante(almacen, u"22222222J"_s);
        CerrarAlmacenes();
    }
    [[nodiscard]] int Error() const {
        return NumeroDelError([&] {
            try {
                Almacen abierto(ClaseAlmacen::Usuario, almacen.mdbmod());
                ComprobarIntegridad(abierto);
            } catch (const SQLite::Exception& error) {
                throw FalloDeAlmacen(error, almacen.mdbmod());
            }
        });
    }
    [[nodiscard]] QByteArray Contenido() const { return LeerFichero(almacen.mdbmod()); }
    void Poner(const QByteArray& contenido) const { EscribirFichero(almacen.mdbmod(), contenido); }
    /// What the check behind the splash finds.
    [[nodiscard]] std::optional<ErrorZT> Revisar() {
        revision.Empezar(almacen.mdbmod());
        return revision.Resultado();
    }
    void RomperUnaClaveAjena() const {
        auto& base = almacen.Usuario()->Base();
        base.exec("PRAGMA foreign_keys = OFF");
        base.exec("INSERT INTO T07_DECLARACIONES (T07_CSDE, T07_EJERCICIO, T07_PERIODO) VALUES (5, 2010, 1)");
        CerrarAlmacenes();
    }

    AlmacenTemporal almacen;
    RevisionDeFondo revision;
};

}  // namespace

TEST_F(IntegridadTest, ASoundStoreIsSound) {
    EXPECT_EQ(Error(), 0);
    EXPECT_FALSE(Revisar());
    EXPECT_TRUE(revision.Acabada());
    EXPECT_GT(revision.Total(), 5);
    EXPECT_EQ(revision.Hechas(), revision.Total());
}

TEST_F(IntegridadTest, ADamagedPageIsFoundWhicheverItIs) {
    const QByteArray entero = Contenido();
    for (qsizetype lugar = kPagina; lugar < entero.size(); lugar += kPagina) {
        QByteArray roto = entero;
        roto.replace(lugar, 64, QByteArray(64, '\x5A'));
        Poner(roto);
        EXPECT_EQ(Error(), 3049) << lugar;
        EXPECT_TRUE(Revisar()) << lugar;
        EXPECT_EQ(Contenido(), roto);
    }
}

TEST_F(IntegridadTest, OneByteInWhichAnIndexAndItsTableDifferIsFound) {
    const QByteArray entero = Contenido();
    int lugares = 0;
    for (auto lugar = entero.indexOf("22222222J"); lugar >= 0;
         lugar = entero.indexOf("22222222J", lugar + 1)) {
        ++lugares;
        QByteArray roto = entero;
        roto[lugar] = '3';
        Poner(roto);
        // The pages themselves are as they should be.
        EXPECT_EQ(almacen.Usuario()->Base().execAndGet("PRAGMA quick_check").getText(), std::string("ok"));
        CerrarAlmacenes();
        EXPECT_TRUE(Revisar()) << lugar;
        EXPECT_EQ(Error(), 3049) << lugar;
    }
    EXPECT_EQ(lugares, 2);
}

TEST_F(IntegridadTest, ARowThatRefersToAMissingOneIsFound) {
    RomperUnaClaveAjena();
    EXPECT_EQ(Error(), 3049);
    const auto dano = Revisar();
    ASSERT_TRUE(dano);
    EXPECT_TRUE(dano->Descripcion().contains(QDir::toNativeSeparators(almacen.mdbmod())));
    EXPECT_TRUE(dano->Descripcion().endsWith(u"Contiene datos que dependen de un registro que falta."_s));
    EXPECT_FALSE(revision.Resultado()) << "it is told once";
}

TEST_F(IntegridadTest, AStoreThatAnotherProgramHoldsHasNoDamage) {
    SQLite::Database otra(almacen.mdbmod().toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("BEGIN EXCLUSIVE");
    EXPECT_FALSE(Revisar());
}

TEST_F(IntegridadTest, WhatIsSkippedFindsNothingAndIsNotWaitedFor) {
    RomperUnaClaveAjena();
    FijarEsperaDeAlmacen(60'000);
    SQLite::Database otra(almacen.mdbmod().toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("BEGIN EXCLUSIVE");
    revision.Empezar(almacen.mdbmod());
    EXPECT_FALSE(revision.Acabada());
    revision.Saltar();
    EXPECT_TRUE(revision.Acabada());
    EXPECT_FALSE(revision.Resultado());
    otra.exec("ROLLBACK");
    EXPECT_TRUE(Revisar()) << "another one can follow";
}
