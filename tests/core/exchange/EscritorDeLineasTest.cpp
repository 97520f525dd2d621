#include "core/exchange/EscritorDeLineas.h"

#include <QTemporaryDir>

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

TEST_F(EscritorDeLineasTest, AFolderAndAFolderThatIsNotThereCannotBeOpened) {
    EXPECT_EQ(NumeroDelError([&] { EscritorDeLineas{carpeta.path()}; }), 75);
    EXPECT_EQ(NumeroDelError([&] { EscritorDeLineas{carpeta.filePath(u"no/hay.txt"_s)}; }), 76);
}

TEST_F(EscritorDeLineasTest, AFileClosedByTheFailureLogTakesNoMoreLines) {
    EscritorDeLineas escritor(ruta);
    CerrarFicherosAbiertos();
    EXPECT_EQ(NumeroDelError([&] { escritor.Escribir(u"UNO"_s); }), 52);
}
