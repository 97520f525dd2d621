#include "core/help/TemasDeAyuda.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

class TemasDeAyudaTest : public testing::Test {
  protected:
    void SetUp() override {
        ASSERT_TRUE(carpeta.isValid());
        Escribir(u"contenido.txt"_s,
                 "uno.htm\tTema uno\n"
                 "\tdos.htm\tTema dos\tfrmZTA,frmZTB\n"
                 "\n"
                 "tres.htm\tTema tres\tfrmZTB\r\n");
        Escribir(u"uno.htm"_s,
                 "<html><head><title>Declaración</title></head><body><h1>Uno</h1><p>La <b>declaración</b>\n"
                 "del trimestre.</p><p>Otra DECLARACION.</p></body></html>");
        Escribir(u"dos.htm"_s, "<html><body><p>Nada que ver.</p></body></html>");
        Escribir(u"tres.htm"_s, "<html><body><ul><li>Una</li><li>declaración</li></ul></body></html>");
    }

    void Escribir(const QString& fichero, const QByteArray& contenido) const {
        EscribirFichero(carpeta.filePath(fichero), contenido);
    }
    [[nodiscard]] QStringList Hallados(const QString& texto) const {
        QStringList ficheros;
        for (const HallazgoDeAyuda& hallazgo : TemasDeAyuda(carpeta.path()).Buscar(texto)) {
            ficheros += hallazgo.tema.fichero;
        }
        return ficheros;
    }

    QTemporaryDir carpeta;
};

}  // namespace

TEST_F(TemasDeAyudaTest, TheContentsGiveFileTitleLevelAndForms) {
    const TemasDeAyuda temas(carpeta.path());
    ASSERT_EQ(temas.Temas().size(), 3);
    EXPECT_EQ(temas.Temas().at(0).fichero, u"uno.htm"_s);
    EXPECT_EQ(temas.Temas().at(0).nivel, 0);
    EXPECT_TRUE(temas.Temas().at(0).formularios.isEmpty());
    EXPECT_EQ(temas.Temas().at(1).titulo, u"Tema dos"_s);
    EXPECT_EQ(temas.Temas().at(1).nivel, 1);
    EXPECT_EQ(temas.Temas().at(1).formularios, QStringList({u"frmZTA"_s, u"frmZTB"_s}));
    EXPECT_EQ(temas.Temas().at(2).formularios, QStringList{u"frmZTB"_s});
}

TEST_F(TemasDeAyudaTest, AFormLeadsToTheFirstTopicThatTellsOfIt) {
    const TemasDeAyuda temas(carpeta.path());
    EXPECT_EQ(temas.TemaDeFormulario(u"frmZTB"_s), u"dos.htm"_s);
    EXPECT_EQ(temas.TemaDeFormulario(u"frmZTC"_s), QString());
    EXPECT_EQ(temas.TemaDeFormulario(QString()), QString());
}

TEST_F(TemasDeAyudaTest, ContentsThatAreMissingAreEmpty) {
    TemasDeAyuda temas(carpeta.filePath(u"no"_s));
    EXPECT_TRUE(temas.Temas().isEmpty());
    EXPECT_TRUE(temas.Buscar(u"a"_s).isEmpty());
}

TEST_F(TemasDeAyudaTest, TheSearchGivesTheTopicsInTheOrderOfTheContents) {
    EXPECT_EQ(Hallados(u"declaración"_s), QStringList({u"uno.htm"_s, u"tres.htm"_s}));
    EXPECT_EQ(Hallados(u"nada"_s), QStringList{u"dos.htm"_s});
    EXPECT_EQ(Hallados(u"ninguno"_s), QStringList());
}

TEST_F(TemasDeAyudaTest, CapitalsAndAccentsMakeNoDifferenceToTheSearch) {
    EXPECT_EQ(Hallados(u"DECLARACION"_s), QStringList({u"uno.htm"_s, u"tres.htm"_s}));
    EXPECT_EQ(Hallados(u"ótrá"_s), QStringList{u"uno.htm"_s});
}

TEST_F(TemasDeAyudaTest, WordsAreFoundAcrossMarkupAndLineEndsButNotAcrossBlocks) {
    EXPECT_EQ(Hallados(u"  la declaración   del "_s), QStringList{u"uno.htm"_s});
    EXPECT_EQ(Hallados(u"Unadeclaración"_s), QStringList());
    EXPECT_EQ(Hallados(u"una declaración"_s), QStringList{u"tres.htm"_s});
}

TEST_F(TemasDeAyudaTest, TitlesAndMarkupAreNotSearched) {
    EXPECT_EQ(Hallados(u"title"_s), QStringList());
    EXPECT_EQ(TextoDelTema(carpeta.filePath(u"uno.htm"_s)),
              u"Uno La declaración del trimestre. Otra DECLARACION."_s);
}

TEST_F(TemasDeAyudaTest, BlanksAndSignsAloneAreFoundNowhere) {
    EXPECT_EQ(Hallados(u" "_s), QStringList());
    EXPECT_EQ(Hallados(u"."_s), QStringList());
}

TEST_F(TemasDeAyudaTest, AFindingTellsHowOftenAndTheWordsAround) {
    const QList<HallazgoDeAyuda> hallazgos = TemasDeAyuda(carpeta.path()).Buscar(u"declaracion"_s);
    ASSERT_EQ(hallazgos.size(), 2);
    EXPECT_EQ(hallazgos.at(0).veces, 2);
    EXPECT_EQ(hallazgos.at(0).fragmento, u"Uno La declaración del trimestre. Otra DECLARACION."_s);
}

TEST_F(TemasDeAyudaTest, TheWordsAroundAreWholeAndDotsStandWhereTheTextGoesOn) {
    const QString relleno = u"palabra "_s.repeated(30);
    Escribir(u"dos.htm"_s, (u"<body><p>"_s + relleno + u"aguja "_s + relleno + u"</p></body>"_s).toUtf8());
    const QList<HallazgoDeAyuda> hallazgos = TemasDeAyuda(carpeta.path()).Buscar(u"aguja"_s);
    ASSERT_EQ(hallazgos.size(), 1);
    const QString fragmento = hallazgos.front().fragmento;
    EXPECT_TRUE(fragmento.startsWith(u"… palabra ")) << fragmento.toStdString();
    EXPECT_TRUE(fragmento.endsWith(u" palabra …")) << fragmento.toStdString();
    EXPECT_TRUE(fragmento.contains(u" aguja "));
    EXPECT_LT(fragmento.size(), 110);
}

TEST_F(TemasDeAyudaTest, TheFoldedTextKeepsThePlacesOfTheOriginal) {
    const QString texto = u"Ñandú Ç € ﬀ İ"_s;
    const QString plegado = PlegarTexto(texto);
    EXPECT_EQ(plegado.size(), texto.size());
    EXPECT_TRUE(plegado.startsWith(u"nandu c €"));
}
