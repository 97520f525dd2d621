#include "online/plataforma/Navegador.h"

#include "tests/online/NavegadorDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

TEST(NavegadorTest, WithoutADesktopAndWithoutABrowserThereIsNone) {
    const NavegadorDePrueba escritorio;
    EXPECT_EQ(BuscarNavegador(), QString());
}

TEST(NavegadorTest, TheDesktopsHandlerIsTakenWhenItHasAProgramForPages) {
    const NavegadorDePrueba escritorio;
    escritorio.Instalar();
    escritorio.Guion(u"xdg-mime"_s, "[ \"$*\" = 'query default text/html' ] && echo navegador.desktop");
    EXPECT_EQ(BuscarNavegador(), escritorio.Ruta(u"xdg-open"_s));
}

TEST(NavegadorTest, ADesktopWithoutAProgramForPagesHasNoBrowser) {
    const NavegadorDePrueba escritorio;
    escritorio.Instalar();
    escritorio.Guion(u"xdg-mime"_s, "exit 0");
    EXPECT_EQ(BuscarNavegador(), QString());
    escritorio.Instalar(u"x-www-browser"_s);
    EXPECT_EQ(BuscarNavegador(), escritorio.Ruta(u"x-www-browser"_s));
}

TEST(NavegadorTest, ADesktopThatCannotBeAskedIsTakenAtItsWord) {
    const NavegadorDePrueba escritorio;
    escritorio.Instalar();
    EXPECT_EQ(BuscarNavegador(), escritorio.Ruta(u"xdg-open"_s));
}

TEST(NavegadorTest, ThePageIsOneArgumentThatNoCommandInterpreterSees) {
    const NavegadorDePrueba escritorio;
    escritorio.Instalar();
    const QString pagina = u"/tmp/a b'c\"$(touch roto)`id`;&|*.HTM"_s;
    AbrirConNavegador(BuscarNavegador(), pagina);
    EXPECT_EQ(QString::fromUtf8(escritorio.Abierto()), u"1\n"_s + pagina + u'\n');
}
