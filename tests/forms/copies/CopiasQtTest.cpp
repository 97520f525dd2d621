#include "forms/copies/CopiasQt.h"

#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

using CopiasQtTest = PruebaDeFormularios;

}  // namespace

TEST_F(CopiasQtTest, ItsClockIsThatOfTheEnvironment) {
    EXPECT_EQ(CopiasQt().Ahora(), QDateTime(QDate(2007, 7, 4), QTime(9, 8, 7)));
}

TEST_F(CopiasQtTest, AMissingCopyOfTheDayIsToldInThePlatformsBoxWithFileAndReason) {
    CopiasQt().AvisarSinCopiaDelDia({MotivoDeCopia::DiscoLleno, u"/copias/auto"_s, u"causa"_s});
    ASSERT_EQ(pantalla.plataforma.size(), 1U);
    EXPECT_EQ(pantalla.plataforma.front(),
              u"No se ha podido hacer la copia automática de hoy. Los datos que ha guardado sí están en el "
              "disco.\n\n/copias/auto\n\nNo hay espacio suficiente en el disco."_s);
    EXPECT_TRUE(pantalla.mensajes.empty()) << "a form would run the rules of the one below when it goes";
}
