#include "core/store/ConsultaLibre.h"

#include "tests/support/AlmacenTemporal.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

class ConsultaLibreTest : public testing::Test {
  protected:
    [[nodiscard]] Tabla Ejecutar(const QString& sql) const {
        return ConAlmacen(ClaseAlmacen::Referencia, m_almacen.mdblec(),
                          [&](Almacen& almacen) { return ConsultaLibre(almacen, sql); });
    }
    [[nodiscard]] int Error(const QString& sql) const {
        return NumeroDelError([&] { (void)Ejecutar(sql); });
    }

    AlmacenTemporal m_almacen;
};

}  // namespace

TEST_F(ConsultaLibreTest, KindsOfFieldComeAsStored) {
    const Tabla filas = Ejecutar(u"SELECT 7, -3000000000, 2.5, 'ñ', NULL"_s);
    EXPECT_EQ(filas(0, 0), Valor(qint32{7}));
    EXPECT_EQ(filas(1, 0), Valor(-3e9));
    EXPECT_EQ(filas(2, 0), Valor(2.5));
    EXPECT_EQ(filas(3, 0), Valor(u"ñ"_s));
    EXPECT_TRUE(filas(4, 0).EsNulo());
    EXPECT_EQ(NumeroDelError([&] { (void)Ejecutar(u"SELECT x'00'"_s); }), 13);
}

TEST_F(ConsultaLibreTest, NoRowsGiveNull) {
    EXPECT_TRUE(Ejecutar(u"SELECT T02_PROID FROM T02_Provincias WHERE T02_PROID = 99"_s).EsNula());
}

TEST_F(ConsultaLibreTest, ClosingSemicolonAndBlanksAreNoSecondOrder) {
    EXPECT_EQ(Ejecutar(u"SELECT 1 ; \r\n"_s)(0, 0), Valor(qint32{1}));
}

TEST_F(ConsultaLibreTest, OnlyOneSelectIsAccepted) {
    for (const QString& sql :
         {u""_s, u"   "_s, u"-- nada"_s, u"SELECT 1; SELECT 2"_s, u"SELECT 1; DELETE FROM T02_Provincias"_s,
          u"DELETE FROM T02_Provincias"_s, u"DELETE FROM T02_Provincias RETURNING T02_PROID"_s,
          u"UPDATE T02_Provincias SET T02_PROCAS = ''"_s, u"INSERT INTO T04_MUNICIPIOS VALUES (999, 'X')"_s,
          u"DROP TABLE T02_Provincias"_s, u"CREATE TEMP TABLE t (a)"_s, u"PRAGMA user_version"_s,
          u"PRAGMA journal_mode = OFF"_s, u"ATTACH ':memory:' AS otra"_s, u"VACUUM"_s, u"BEGIN"_s,
          u"EXPLAIN SELECT 1"_s, u"EXPLAIN QUERY PLAN SELECT 1"_s}) {
        EXPECT_EQ(Error(sql), 3075) << sql.toStdString();
    }
    EXPECT_EQ(Ejecutar(u"SELECT count(*) FROM T02_Provincias"_s)(0, 0), Valor(qint32{52}));
}

TEST_F(ConsultaLibreTest, ATextThatTheStoreDoesNotTakeIsAFailedOrder) {
    EXPECT_EQ(Error(u"SELECT FROM"_s), 3075);
    EXPECT_EQ(Error(u"SELECT X FROM T99"_s), 3075);
    EXPECT_TRUE(DescripcionDelError([&] {
                    (void)Ejecutar(u"SELECT X FROM T99"_s);
                }).contains(QDir::toNativeSeparators(m_almacen.mdblec())));
}
