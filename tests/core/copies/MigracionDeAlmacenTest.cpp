#include "core/copies/MigracionDeAlmacen.h"

#include <array>

#include "core/store/Migracion.h"
#include "tests/support/DiscoLleno.h"
#include "tests/support/PruebaDeCopias.h"
#include "tests/support/VolcadoSql.h"

using namespace Qt::StringLiterals;

namespace {

/// Steps of later versions as they might be: a column, a table that is filled, a change of values.
std::array<PasoDeEsquema, 3> PasosDePrueba() {
    return {PasosDelUsuario().front(),
            PasoDeEsquema{2,
                          "ALTER TABLE T00_GENERAL ADD COLUMN T00_PRUEBA INTEGER NOT NULL DEFAULT 3;"
                          "CREATE TABLE T11_PRUEBA (T11_CSDE INTEGER PRIMARY KEY REFERENCES T05_DECLARANTES "
                          "(T05_CSDE), T11_DECLARACIONES INTEGER NOT NULL) STRICT;"
                          "INSERT INTO T11_PRUEBA SELECT T05_CSDE, (SELECT count(*) FROM T07_DECLARACIONES "
                          "WHERE T07_CSDE = T05_CSDE) FROM T05_DECLARANTES;"},
            PasoDeEsquema{3, "UPDATE T00_GENERAL SET T00_PRUEBA = T00_PRUEBA + 1"}};
}

class MigracionDeAlmacenTest : public PruebaDeCopias {
  protected:
    void SetUp() override {
        CerrarAlmacenes();
        CrearDeVolcado(vivo(), Fichero(u"version_1.sql"_s));
    }
    static QByteArray Fichero(const QString& nombre) {
        return LeerFichero(QStringLiteral(ZELT_MIGRACION) + u'/' + nombre);
    }
    template <class Pasos>
    void MigrarConCopia(const Pasos& pasos) const {
        Almacen vieja(ClaseAlmacen::Usuario, vivo(), Versiones::LaActualYAnteriores);
        ::MigrarConCopia(vieja, pasos, QDateTime(QDate(2007, 7, 4), QTime(9, 8, 7)));
    }
    [[nodiscard]] static QByteArray Volcado(const QString& ruta) {
        SQLite::Database base(ruta.toStdString(), SQLite::OPEN_READONLY);
        return VolcadoSql(base);
    }

    const QString anterior = automaticas() + u"/ZELTMOD-20070704-090807-000-migracion.mdb"_s;
};

}  // namespace

TEST_F(MigracionDeAlmacenTest, TheStoreOfVersionOneIsTheOneThatIsInUse) {
    const QByteArray antes = LeerFichero(vivo());
    MigrarAlmacen(vivo(), {});
    EXPECT_EQ(LeerFichero(vivo()), antes);
    EXPECT_EQ(Volcado(vivo()), Fichero(u"version_1.sql"_s));
    EXPECT_FALSE(QDir(automaticas()).exists()) << "one that is up to date needs no copy";
}

TEST_F(MigracionDeAlmacenTest, AnOlderStoreComesOutAsTheGoldenOneOfTheNewVersion) {
    MigrarConCopia(PasosDePrueba());
    EXPECT_EQ(Volcado(vivo()), Fichero(u"version_3_de_prueba.sql"_s));
}

TEST_F(MigracionDeAlmacenTest, TheOlderStoreIsAmongTheAutomaticCopiesAsItWas) {
    MigrarConCopia(PasosDePrueba());
    EXPECT_EQ(Volcado(anterior), Fichero(u"version_1.sql"_s));
    EsperarSuma(anterior);
    EXPECT_EQ(Ficheros(automaticas()).size(), 2);
}

TEST_F(MigracionDeAlmacenTest, AStepThatFailsOrLeavesAnUnsoundStoreChangesNothing) {
    const QByteArray antes = LeerFichero(vivo());
    for (const char* sql : {"CREATE TABLE T99 (a INTEGER) STRICT; INSERT INTO T97 VALUES (1)",
                            "UPDATE T07_DECLARACIONES SET T07_CSDE = 5 WHERE T07_CSDC = 1"}) {
        auto pasos = PasosDePrueba();
        pasos.back() = PasoDeEsquema{3, sql};
        EXPECT_ANY_THROW(MigrarConCopia(pasos)) << sql;
        EXPECT_EQ(LeerFichero(vivo()), antes);
    }
}

TEST_F(MigracionDeAlmacenTest, WithoutItsCopyAStoreIsNotBroughtUp) {
    const QByteArray antes = LeerFichero(vivo());
    ASSERT_TRUE(QDir(copias()).removeRecursively());
    EscribirFichero(copias(), "no es una carpeta");
    EXPECT_EQ(NumeroDelError([&] { MigrarConCopia(PasosDePrueba()); }), 75);
    QFile::remove(copias());
    {
        const DiscoLleno lleno(1000);
        EXPECT_NE(NumeroDelError([&] { MigrarConCopia(PasosDePrueba()); }), 0);
    }
    EXPECT_EQ(LeerFichero(vivo()), antes);
}

TEST_F(MigracionDeAlmacenTest, MigrationsLeaveTheLastTenCopies) {
    for (int dia = 1; dia <= 10; ++dia) {
        (void)HacerCopiaAutomatica(almacen.Usuario()->Base(), vivo(), Ocasion::Diaria,
                                   QDateTime(QDate(2007, 6, dia), QTime(8, 0)));
    }
    CerrarAlmacenes();
    MigrarConCopia(PasosDePrueba());
    EXPECT_EQ(CopiasAutomaticas(automaticas()).size(), 10U);
    EXPECT_TRUE(QFile::exists(anterior));
}
