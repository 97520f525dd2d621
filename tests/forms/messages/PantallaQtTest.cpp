#include "forms/messages/PantallaQt.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>

namespace {

class VentanaQueCuenta : public QWidget {
  public:
    int pintadas = 0;

  protected:
    void paintEvent(QPaintEvent* /*evento*/) override { ++pintadas; }
};

}  // namespace

TEST(PantallaQtTest, AWaitForAnotherProgramRepaintsAndShowsTheWaitPointerButRunsNoEvent) {
    PantallaQt pantalla;
    VentanaQueCuenta ventana;
    ventana.show();
    QCoreApplication::processEvents();
    bool corrido = false;
    QMetaObject::invokeMethod(
        &ventana, [&] { corrido = true; }, Qt::QueuedConnection);
    const int antes = ventana.pintadas;
    pantalla.EsperarAOtro(true);
    pantalla.EsperarAOtro(true);
    EXPECT_EQ(ventana.pintadas, antes + 2);
    ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    EXPECT_FALSE(corrido);
    pantalla.EsperarAOtro(false);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    QCoreApplication::processEvents();
    EXPECT_TRUE(corrido);
}

TEST(PantallaQtTest, AWaitPointerThatIsThereStaysAfterAWaitForAnotherProgram) {
    PantallaQt pantalla;
    pantalla.PonerPuntero(Puntero::Espera);
    pantalla.EsperarAOtro(true);
    pantalla.EsperarAOtro(false);
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
    pantalla.PonerPuntero(Puntero::Normal);
}
