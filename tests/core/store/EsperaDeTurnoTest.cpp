#include "core/store/EsperaDeTurno.h"

#include <gtest/gtest.h>

#include "core/services/svrZELT/cZTGeneral.h"
#include "tests/support/AlmacenTemporal.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/PantallaQueEspera.h"

using namespace Qt::StringLiterals;

namespace {

class EsperaDeTurnoTest : public testing::Test {
  protected:
    EsperaDeTurnoTest() : otra(almacen.mdbmod().toStdString(), SQLite::OPEN_READWRITE) {
        FijarEsperaDeAlmacen(60);
        otra.exec("BEGIN EXCLUSIVE");
    }
    [[nodiscard]] int ErrorAlLeer() const {
        return NumeroDelError([&] { (void)almacen.Con<svrZELT::cZTGeneral>().ExisteDec(); });
    }

    AlmacenTemporal almacen;
    SQLite::Database otra;
    PantallaQueEspera pantalla;
};

}  // namespace

TEST_F(EsperaDeTurnoTest, AWaitTellsTheScreenAgainAndAgainAndOnceThatItIsOver) {
    EXPECT_EQ(ErrorAlLeer(), 3260);
    EXPECT_GE(pantalla.pasos, 1);
    EXPECT_EQ(pantalla.finales, 1);
}

TEST_F(EsperaDeTurnoTest, AllWaitsOfAnActionShareOneBudget) {
    const AccionDeAlmacen accion;
    EXPECT_EQ(ErrorAlLeer(), 3260);
    const int pasos = pantalla.pasos;
    EXPECT_GE(pasos, 1);
    EXPECT_EQ(ErrorAlLeer(), 3260);
    EXPECT_EQ(pantalla.pasos, pasos);
    EXPECT_EQ(pantalla.finales, 0);
}

TEST_F(EsperaDeTurnoTest, TheNextActionHasABudgetOfItsOwn) {
    EXPECT_EQ(ErrorAlLeer(), 3260);
    const int pasos = pantalla.pasos;
    EXPECT_EQ(ErrorAlLeer(), 3260);
    EXPECT_GT(pantalla.pasos, pasos);
}

TEST_F(EsperaDeTurnoTest, AStoreThatIsFreeIsNotWaitedFor) {
    otra.exec("ROLLBACK");
    EXPECT_EQ(ErrorAlLeer(), 0);
    EXPECT_EQ(pantalla.pasos, 0);
    EXPECT_EQ(pantalla.finales, 0);
}
