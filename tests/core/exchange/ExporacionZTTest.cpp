#include "core/exchange/ExporacionZT.h"

#include <sys/stat.h>

#include <QDir>
#include <QFileInfo>

#include "core/exchange/RegistroDeIntercambio.h"
#include "core/exchange/cZTExportaciones.h"
#include "core/run/Textos.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "tests/support/DatosDeIntercambio.h"
#include "tests/support/DiscoLleno.h"
#include "tests/support/DiscoSinSitio.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/FicherosDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class ExporacionZTTest : public EntornoDePrueba {
  protected:
    /// Stores a declarant and chooses him for export.
    static void Elegir(const Registro& declarante) {
        svrZELT::cZTDeclarante servidor;
        servidor.mdbmod = Entorno().mdbmod;
        oExportaciones().vBufferDtes.emplace_back(servidor.GuardarDeclarante(declarante));
    }
    static void ElegirDos() {
        Elegir(DeclaranteDePrueba(u"12345678Z"_s, u"UNO"_s));
        Elegir(DeclaranteDePrueba(u"00000000T"_s, u"DOS"_s));
    }
    static QByteArray Linea(const QString& nif, const QString& nombre) {
        return LineaDeDeclarante(DeclaranteDePrueba(nif, nombre)).toLatin1() + "\r\n";
    }
    static QByteArray DosLineas() {
        return Linea(u"12345678Z"_s, u"UNO"_s) + Linea(u"00000000T"_s, u"DOS"_s);
    }

    QString ruta = carpeta.filePath(u"Declaran.txt"_s);
    PantallaDeExportacionGrabadora formulario{ruta};
};

}  // namespace

TEST_F(ExporacionZTTest, TheChosenDeclarantsAreWrittenInTheirOrderOneALine) {
    ElegirDos();
    ExportarDeclarantes(formulario);
    EXPECT_EQ(LeerFichero(ruta), DosLineas());
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(ExporacionZTTest, TheScreenFollowsTheWork) {
    ElegirDos();
    ExportarDeclarantes(formulario);
    EXPECT_EQ(formulario.pasos, QStringList({u"empezar"_s, u"barra"_s, u"1/2"_s, u"2/2"_s, u"terminar"_s}));
}

TEST_F(ExporacionZTTest, AFileThatExistsIsWrittenOverWhenTheUserSaysSo) {
    ElegirDos();
    EscribirFichero(ruta, "antes");
    ExportarDeclarantes(formulario);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes.front().texto, Texto(108));
    EXPECT_EQ(pantalla.mensajes.front().titulo, u"Exportar"_s);
    EXPECT_FALSE(pantalla.mensajes.front().unBoton);
    EXPECT_EQ(LeerFichero(ruta), DosLineas());
}

TEST_F(ExporacionZTTest, AFileThatExistsStaysWhenTheUserCancels) {
    ElegirDos();
    EscribirFichero(ruta, "antes");
    pantalla.respuesta = kRespuestaCancelar;
    ExportarDeclarantes(formulario);
    EXPECT_EQ(LeerFichero(ruta), QByteArray("antes"));
    EXPECT_TRUE(formulario.pasos.isEmpty());
}

TEST_F(ExporacionZTTest, InEuskeraTheMissingQuestionIsTheFailureAndTheFileStays) {
    ElegirDos();
    EscribirFichero(ruta, "antes");
    Entorno().OffsetIdioma = 1000;
    EXPECT_EQ(NumeroDelError([&] { ExportarDeclarantes(formulario); }), 326);
    EXPECT_EQ(LeerFichero(ruta), QByteArray("antes"));
    EXPECT_TRUE(formulario.pasos.isEmpty());
    QFile::remove(ruta);
    ExportarDeclarantes(formulario);
    EXPECT_EQ(LeerFichero(ruta), DosLineas());
}

TEST_F(ExporacionZTTest, ANameThatNoFileCanBearEndsInTheMissingText) {
    ElegirDos();
    for (const QString& nombre : {QString(), u"a\nb.txt"_s, carpeta.filePath(QString(300, u'x'))}) {
        PantallaDeExportacionGrabadora otro(nombre);
        EXPECT_EQ(NumeroDelError([&] { ExportarDeclarantes(otro); }), 326);
        EXPECT_TRUE(otro.pasos.isEmpty());
    }
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(ExporacionZTTest, AFolderIsAFailureThatNamesIt) {
    ElegirDos();
    PantallaDeExportacionGrabadora otro(carpeta.path());
    const QString descripcion = DescripcionDelError([&] { ExportarDeclarantes(otro); });
    EXPECT_TRUE(descripcion.startsWith(u"exportacion.ExportarDeclarantes\r\nError de acceso a la ruta"));
    EXPECT_TRUE(descripcion.endsWith(carpeta.path()));
    EXPECT_TRUE(otro.pasos.isEmpty());
}

TEST_F(ExporacionZTTest, ALetterThatDoesNotFitEndsTheExportAndTheLinesBeforeStay) {
    ElegirDos();
    Registro largo = DeclaranteDePrueba(u"99999999R"_s);
    largo[6] = u"BIS"_s;
    Elegir(largo);
    EXPECT_EQ(
        DescripcionDelError([&] { ExportarDeclarantes(formulario); }),
        u"exportacion.ExportarDeclarantes\r\nexportacion.ExportarDeclarantesSolo\r\n"
        u"Argumento o llamada a procedimiento no válida: \"BIS\" no cabe en 2 caracteres (NIF 99999999R)"_s);
    EXPECT_EQ(LeerFichero(ruta), DosLineas());
    EXPECT_FALSE(formulario.pasos.contains(u"terminar"_s));
}

TEST_F(ExporacionZTTest, TheProgramsOwnCauseIsInTheLanguageInForce) {
    Registro largo = DeclaranteDePrueba(u"99999999R"_s);
    largo[6] = u"%2X"_s;
    Elegir(largo);
    Entorno().OffsetIdioma = 1000;
    EXPECT_TRUE(DescripcionDelError([&] {
                    ExportarDeclarantes(formulario);
                }).endsWith(u": \"%2X\" ez da 2 karakteretan sartzen (IFZ 99999999R)"));
}

TEST_F(ExporacionZTTest, ACharacterOutsideTheCodePageEndsTheExportAndIsNamed) {
    ElegirDos();
    Elegir(DeclaranteDePrueba(u"99999999R"_s, u"ŁÓDŹ"_s));
    const QString descripcion = DescripcionDelError([&] { ExportarDeclarantes(formulario); });
    EXPECT_TRUE(descripcion.contains(u"99999999R"));
    EXPECT_TRUE(descripcion.contains(u"'Ł'"));
    EXPECT_EQ(LeerFichero(ruta), DosLineas());
}

TEST_F(ExporacionZTTest, AFullDiskEndsTheExportAndTheFileIsNamed) {
    ElegirDos();
    pantalla.respuesta = kRespuestaAceptar;
    PantallaDeExportacionGrabadora otro(u"/dev/full"_s);
    const QString descripcion = DescripcionDelError([&] { ExportarDeclarantes(otro); });
    EXPECT_TRUE(descripcion.contains(u"Disco lleno: /dev/full"));
    EXPECT_FALSE(otro.pasos.contains(u"terminar"_s));
}

TEST_F(ExporacionZTTest, AnExportThatFailsLeavesTheEarlierOneAsItWasAndWhatItWroteBesideIt) {
    ElegirDos();
    Elegir(DeclaranteDePrueba(u"99999999R"_s, u"ŁÓDŹ"_s));
    EscribirFichero(ruta, "antes");
    EXPECT_EQ(NumeroDelError([&] { ExportarDeclarantes(formulario); }), 20001);
    EXPECT_EQ(LeerFichero(ruta), QByteArray("antes"));
    EXPECT_EQ(LeerFichero(ruta + u".incompleto"_s), DosLineas());
}

TEST_F(ExporacionZTTest, ADiskThatFillsUpLeavesTheEarlierExportAsItWas) {
    for (int i = 0; i < 60; ++i) {
        ElegirDos();
    }
    EscribirFichero(ruta, "antes");
    {
        const DiscoLleno lleno(4'096);
        EXPECT_NE(NumeroDelError([&] { ExportarDeclarantes(formulario); }), 0);
    }
    EXPECT_EQ(LeerFichero(ruta), QByteArray("antes"));
}

TEST_F(ExporacionZTTest, WantOfRoomAtWhateverCallIsToldAsSuchAndLeavesTheEarlierExport) {
    ElegirDos();
    bool negado = true;
    int fallos = 0;
    for (int dejadas = 0; negado; ++dejadas) {
        EscribirFichero(ruta, "antes");
        int numero = 0;
        {
            const DiscoSinSitio disco(dejadas);
            numero = NumeroDelError([&] { ExportarDeclarantes(formulario); });
            negado = disco.Negado();
        }
        if (numero != 0) {
            ++fallos;
            EXPECT_EQ(numero, 61) << dejadas;
            EXPECT_EQ(LeerFichero(ruta), QByteArray("antes")) << dejadas;
        }
    }
    EXPECT_GT(fallos, 2);
    EXPECT_EQ(LeerFichero(ruta), DosLineas());
}

TEST_F(ExporacionZTTest, AFinishedExportHasTheRightsOfTheUsersFilesAndLeavesNothingBeside) {
    ElegirDos();
    const mode_t mascara = umask(0027);
    ExportarDeclarantes(formulario);
    umask(mascara);
    EXPECT_EQ(QFile::permissions(ruta) & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup),
              QFile::ReadGroup);
    EXPECT_TRUE(QDir(QFileInfo(ruta).path()).entryList({u"*.parcial*"_s, u"*.incompleto"_s}).isEmpty());
}

TEST_F(ExporacionZTTest, AnExportOverALinkReplacesTheFileThatItLeadsTo) {
    ElegirDos();
    const QString detras = ruta + u".detras"_s;
    EscribirFichero(detras, "antes");
    ASSERT_TRUE(QFile::link(detras, ruta));
    ExportarDeclarantes(formulario);
    EXPECT_TRUE(QFileInfo(ruta).isSymbolicLink());
    EXPECT_EQ(LeerFichero(detras), DosLineas());
}

TEST_F(ExporacionZTTest, NoDeclarantChosenGivesAnEmptyFile) {
    ExportarDeclarantes(formulario);
    EXPECT_TRUE(QFile::exists(ruta));
    EXPECT_TRUE(LeerFichero(ruta).isEmpty());
}

TEST_F(ExporacionZTTest, ADeclarantIsReadIntoTheRecordOfTheExport) {
    Elegir(DeclaranteDePrueba(u"12345678Z"_s, u"UNO"_s));
    const qint32 CSDE = oExportaciones().vBufferDtes.front().aEntero32();
    oExportaciones().DeclaranteAExportar(CSDE);
    Registro esperado = DeclaranteDePrueba(u"12345678Z"_s, u"UNO"_s);
    esperado[0] = CSDE;
    EXPECT_EQ(oExportaciones().vBufferDeclarante, esperado);
}
