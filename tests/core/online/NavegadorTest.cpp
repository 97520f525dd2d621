#include "core/online/plataforma/Navegador.h"

#include "tests/support/EntornoDePrueba.h"
#include "tests/support/NavegadorDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class NavegadorTest : public testing::Test {
  protected:
    void SetUp() override { FijarPantalla(&pantalla); }
    void TearDown() override { FijarPantalla(nullptr); }

    PantallaGrabadora pantalla;
    NavegadorDePrueba escritorio;
};

}  // namespace

TEST_F(NavegadorTest, WithoutADesktopAndWithoutABrowserThereIsNone) {
    EXPECT_EQ(BuscarNavegador(), QString());
}

TEST_F(NavegadorTest, TheDesktopsHandlerIsTakenWhenItHasAProgramForPages) {
    escritorio.Instalar();
    escritorio.Guion(u"xdg-mime"_s, "[ \"$*\" = 'query default text/html' ] && echo navegador.desktop");
    EXPECT_EQ(BuscarNavegador(), escritorio.Ruta(u"xdg-open"_s));
}

TEST_F(NavegadorTest, ADesktopWithoutAProgramForPagesHasNoBrowser) {
    escritorio.Instalar();
    escritorio.Guion(u"xdg-mime"_s, "exit 0");
    EXPECT_EQ(BuscarNavegador(), QString());
    escritorio.Instalar(u"x-www-browser"_s);
    EXPECT_EQ(BuscarNavegador(), escritorio.Ruta(u"x-www-browser"_s));
}

TEST_F(NavegadorTest, ADesktopThatCannotBeAskedIsTakenAtItsWord) {
    escritorio.Instalar();
    EXPECT_EQ(BuscarNavegador(), escritorio.Ruta(u"xdg-open"_s));
}

TEST_F(NavegadorTest, ADesktopThatDoesNotAnswerIsWaitedForUnderTheHourglassForAWhileOnly) {
    escritorio.Instalar();
    escritorio.Guion(u"xdg-mime"_s, "exec /bin/sleep 60");
    QElapsedTimer reloj;
    reloj.start();
    EXPECT_EQ(BuscarNavegador(), escritorio.Ruta(u"xdg-open"_s));
    EXPECT_LT(reloj.elapsed(), 30'000);
    EXPECT_EQ(pantalla.punteros, std::vector({Puntero::Espera, Puntero::Normal}));
}

TEST_F(NavegadorTest, ThePageIsOneArgumentThatNoCommandInterpreterSees) {
    escritorio.Instalar();
    const QString pagina = u"/tmp/a b'c\"$(touch roto)`id`;&|*.HTM"_s;
    AbrirConNavegador(BuscarNavegador(), pagina);
    EXPECT_EQ(QString::fromUtf8(escritorio.Abierto()), u"1\n"_s + pagina + u'\n');
}
