#include "core/exchange/EscritorDeLineas.h"

#include <QTemporaryDir>

#include "tests/support/DiscoLleno.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

class EscritorDeLineasTest : public testing::Test {
  protected:
    QTemporaryDir carpeta;
    QString ruta = carpeta.filePath(u"salida.txt"_s);
};

}  // namespace

TEST_F(EscritorDeLineasTest, LinesAreWrittenInTheCodePageWithCrLf) {
    EscritorDeLineas escritor(ruta);
    escritor.Escribir(u"ÑÇ ºª Á"_s);
    escritor.Escribir(QString());
    escritor.Cerrar();
    EXPECT_EQ(LeerFichero(ruta), QByteArray("\xD1\xC7 \xBA\xAA \xC1\r\n\r\n"));
}

TEST_F(EscritorDeLineasTest, AFileThatExistsIsEmptied) {
    EscribirFichero(ruta, "antes");
    const EscritorDeLineas escritor(ruta);
    EXPECT_TRUE(LeerFichero(ruta).isEmpty());
}

TEST_F(EscritorDeLineasTest, ACharacterOutsideTheCodePageIsAFailureAndTheLinesBeforeStay) {
    {
        EscritorDeLineas escritor(ruta);
        escritor.Escribir(u"UNO"_s);
        EXPECT_EQ(NumeroDelError([&] { escritor.Escribir(u"Ł"_s); }), 20001);
    }
    EXPECT_EQ(LeerFichero(ruta), QByteArray("UNO\r\n"));
}

TEST_F(EscritorDeLineasTest, AFullDiskIsAFailureThatNamesTheFileAndTheCause) {
    EscritorDeLineas escritor(u"/dev/full"_s);
    escritor.Escribir(u"UNO"_s);
    const QString descripcion = DescripcionDelError([&] { escritor.Cerrar(); });
    EXPECT_TRUE(descripcion.contains(u"Disco lleno")) << descripcion.toStdString();
    EXPECT_TRUE(descripcion.contains(u"/dev/full"));
    EXPECT_EQ(NumeroDelError([&] {
                  for (;;) {
                      escritor.Escribir(QString(1000, u'X'));
                  }
              }),
              61);
}

TEST_F(EscritorDeLineasTest, WhatADiskThatFillsUpTookEndsWithAWholeLineAndTheCauseIsTold) {
    constexpr int kLineas = 5000;
    EscritorDeLineas escritor(ruta);
    {
        const DiscoLleno lleno(100'003);
        const QString descripcion = DescripcionDelError([&] {
            for (int i = 0; i < kLineas; ++i) {
                escritor.Escribir(QString(98, u'X'));
            }
            escritor.Cerrar();
        });
        EXPECT_FALSE(descripcion.contains(u"desconocido", Qt::CaseInsensitive)) << descripcion.toStdString();
        EXPECT_FALSE(descripcion.contains(u"Unknown")) << descripcion.toStdString();
    }
    const QByteArray contenido = LeerFichero(ruta);
    EXPECT_EQ(contenido.size(), 100'000);
    EXPECT_TRUE(contenido.endsWith("X\r\n"));
}

TEST_F(EscritorDeLineasTest, AFolderAndAFolderThatIsNotThereCannotBeOpened) {
    EXPECT_EQ(NumeroDelError([&] { EscritorDeLineas{carpeta.path()}; }), 75);
    EXPECT_EQ(NumeroDelError([&] { EscritorDeLineas{carpeta.filePath(u"no/hay.txt"_s)}; }), 76);
}

TEST_F(EscritorDeLineasTest, AFileClosedByTheFailureLogKeepsItsLinesAndTakesNoMore) {
    EscritorDeLineas escritor(ruta);
    escritor.Escribir(u"ANTES"_s);
    CerrarFicherosAbiertos();
    EXPECT_EQ(LeerFichero(ruta), QByteArray("ANTES\r\n"));
    EXPECT_EQ(NumeroDelError([&] { escritor.Escribir(u"UNO"_s); }), 52);
}
