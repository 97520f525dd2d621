// Whoever looks a message up in the help finds it.

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <algorithm>

#include "core/help/TemasDeAyuda.h"
#include "tests/core/help/TextosDeMensajes.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

struct Juego {
    QString carpeta;
    int offset;
};

/// The parts of a text between what comes in at run time, from their first letter to their last.
QStringList Partes(const QString& texto) {
    static const QRegularExpression hueco(u"%\\d|\\\\n"_s);
    static const QRegularExpression bordes(u"^[^\\p{L}\\d]+|[^\\p{L}\\d]+$"_s);
    QStringList partes = texto.split(hueco);
    for (QString& parte : partes) {
        parte.remove(bordes);
    }
    partes.removeAll(QString());
    return partes;
}

class MensajesEnAyudaTest : public testing::TestWithParam<Juego> {
  protected:
    [[nodiscard]] QStringList TextosDeLosTemas() const {
        const TemasDeAyuda temas(QStringLiteral(ZELT_AYUDA) + u'/' + GetParam().carpeta);
        QStringList textos;
        for (const TemaDeAyuda& tema : temas.Temas()) {
            textos += TextoDelTema(temas.Carpeta() + u'/' + tema.fichero).simplified();
        }
        return textos;
    }
};

}  // namespace

TEST_P(MensajesEnAyudaTest, EveryTextThatAMessageCanShowStandsInATopic) {
    const QStringList temas = TextosDeLosTemas();
    for (const QString& texto : TextosDeMensajes(GetParam().offset)) {
        const QStringList partes = Partes(texto);
        EXPECT_TRUE(std::ranges::any_of(temas, [&](const QString& tema) {
            return std::ranges::all_of(partes, [&](const QString& parte) { return tema.contains(parte); });
        })) << texto.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(LosDosIdiomas, MensajesEnAyudaTest,
                         testing::Values(Juego{u"Ayuda"_s, 0}, Juego{u"Laguntza"_s, 1000}),
                         [](const auto& caso) { return caso.param.carpeta.toStdString(); });

TEST(TextosDeMensajesTest, MessagesOfEveryKindAreFound) {
    const QStringList castellano = TextosDeMensajes(0);
    const QStringList euskera = TextosDeMensajes(1000);
    for (const QString& texto :
         {u"No se puede borrar un establecimiento con anexos"_s, u"El periodo máximo pare este año es el"_s,
          u"El CIM debe de tener 8 caracteres"_s, u"El código de municipio debe ser numérico."_s,
          u"La Fecha de presentación no puede ser anterior al"_s, u"El fichero no existe."_s,
          u"\"%1\" no cabe en %2 caracteres"_s, u"El declarante"_s, u"El fichero de datos está dañado"_s,
          u"El fichero está cortado."_s}) {
        EXPECT_TRUE(castellano.contains(texto)) << texto.toStdString();
        EXPECT_FALSE(euskera.contains(texto)) << texto.toStdString();
    }
    EXPECT_TRUE(castellano.contains(u"Desbordamiento"_s) && euskera.contains(u"Desbordamiento"_s));
}
