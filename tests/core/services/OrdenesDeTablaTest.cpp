#include "core/services/OrdenesDeTabla.h"

#include <gtest/gtest.h>

namespace {

constexpr std::array kColumnas{ColumnaDeAlmacen{0, "T_CLAVE", TipoDeColumna::Entero32},
                               ColumnaDeAlmacen{1, "T_NOMBRE", TipoDeColumna::Texto},
                               ColumnaDeAlmacen{2, "T_SUMA", TipoDeColumna::Doble}};
static_assert(EnOrden(kColumnas));
static_assert(!EnOrden(ColumnasDeAlmacen(kColumnas).subspan(1)));

}  // namespace

TEST(OrdenesDeTabla, ASelectNamesTheColumnsInTheirOrder) {
    EXPECT_EQ(OrdenDeLeer(kColumnas, "FROM T WHERE T_CLAVE = ?"),
              "SELECT T_CLAVE, T_NOMBRE, T_SUMA FROM T WHERE T_CLAVE = ?");
}

TEST(OrdenesDeTabla, AnInsertAsksForANewKeyWhereItIsZero) {
    EXPECT_EQ(OrdenDeInsertar("T", kColumnas),
              "INSERT INTO T (T_CLAVE, T_NOMBRE, T_SUMA) VALUES (nullif(?1, 0), ?2, ?3)");
}

TEST(OrdenesDeTabla, AnUpdateSetsAllColumnsButTheKey) {
    EXPECT_EQ(OrdenDeCambiar("T", kColumnas), "UPDATE T SET T_NOMBRE = ?2, T_SUMA = ?3 WHERE T_CLAVE = ?1");
}
