#include "forms/copies/TextosDeCopia.h"

#include <set>

#include "core/run/Entorno.h"
#include "tests/support/EntornoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

using TextosDeCopiaTest = EntornoDePrueba;

}  // namespace

TEST_F(TextosDeCopiaTest, EveryReasonHasATextOfItsOwnInBothLanguages) {
    std::set<QString> textos;
    for (const qint16 offset : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = offset;
        for (int motivo = 0; motivo < static_cast<int>(MotivoDeCopia::Otro); ++motivo) {
            const QString texto = TextoDeMotivo({static_cast<MotivoDeCopia>(motivo), {}, u"causa"_s});
            EXPECT_NE(texto, u"causa"_s) << motivo;
            EXPECT_TRUE(textos.insert(texto).second) << texto.toStdString();
        }
    }
}

TEST_F(TextosDeCopiaTest, AnUnforeseenReasonIsToldAsItCame) {
    EXPECT_EQ(TextoDeMotivo({MotivoDeCopia::Otro, {}, u"causa"_s}), u"causa"_s);
}

TEST_F(TextosDeCopiaTest, DaysAndMomentsAreInTheFormatOfTheLanguage) {
    ResumenDeCopia copia;
    copia.fecha = QDate(2007, 7, 4);
    EXPECT_EQ(TextoDeMomento(copia), u"04/07/2007"_s);
    copia.hora = QTime(9, 8, 7);
    EXPECT_EQ(TextoDeMomento(copia), u"04/07/2007 09:08:07"_s);
    Entorno().OffsetIdioma = 1000;
    EXPECT_EQ(TextoDeMomento(copia), u"2007/07/04 09:08:07"_s);
    EXPECT_EQ(TextoDeDia({}), u"ez dago jasota"_s);
}
