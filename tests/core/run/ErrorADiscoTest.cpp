#include "core/run/ErrorADisco.h"

#include <QDir>
#include <QFile>

#include "core/base/FicherosAbiertos.h"
#include "core/base/Windows1252.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/MascaraDePermisos.h"

using namespace Qt::StringLiterals;

namespace {

class ErrorADiscoTest : public EntornoDePrueba {
  protected:
    void SetUp() override {
        EntornoDePrueba::SetUp();
        Entorno().NombreEjecutable = u"ZELT"_s;
        Entorno().NombreMaquina = u"PC-7"_s;
    }

    static void Momento(int hora, int minuto, int segundo) {
        Entorno().Reloj = [=] { return QDateTime(QDate(2007, 7, 4), QTime(hora, minuto, segundo)); };
    }

    static QByteArray Contenido(const QString& ruta) {
        QFile fichero(ruta);
        EXPECT_TRUE(fichero.open(QIODevice::ReadOnly)) << ruta.toStdString();
        return fichero.readAll();
    }

    QStringList Registros() const {
        return QDir(carpeta.filePath(u"tmp"_s)).entryList(QDir::Files, QDir::Name);
    }
};

}  // namespace

TEST_F(ErrorADiscoTest, TheLogHoldsExactlyTheseLinesInTheCodePageWithCrLf) {
    const QString ruta = ErrorADisco(u"frmZTImp"_s, u"frmZTImp.cmdAceptar_Click"_s,
                                     u"General.CargarResultado\r\nNo se encontró el año"_s);
    const QByteArray esperado =
        "Error generado el 04/07/07 09:08:07 por el\r\n"
        "ejecutable ZELT\r\n"
        "en la m\xE1quina PC-7\r\n"
        "__________________________________________________________\r\n"
        "\r\n"
        "  Formulario           frmZTImp\r\n"
        "  Evento                  frmZTImp.cmdAceptar_Click\r\n"
        "  Descripci\xF3n       \r\n"
        "\r\n"
        "General.CargarResultado\r\n"
        "No se encontr\xF3 el a\xF1o\r\n"
        "__________________________________________________________\r\n"
        "\r\n"
        "\r\n";
    EXPECT_EQ(Contenido(ruta).toStdString(), esperado.toStdString());
}

TEST_F(ErrorADiscoTest, TheNameIsTheMomentInTheTemporaryFolder) {
    Momento(21, 5, 0);
    const QString ruta = ErrorADisco(u"f"_s, u"e"_s, u"d"_s);
    EXPECT_EQ(ruta, Entorno().CarpetaTemporal + QDir::separator() + u"Error07-07-04 21-05-00.log"_s);
    EXPECT_EQ(Registros(), QStringList{u"Error07-07-04 21-05-00.log"_s});
}

TEST_F(ErrorADiscoTest, EachErrorHasAFileOfItsOwn) {
    Momento(9, 0, 0);
    ErrorADisco(u"f"_s, u"e"_s, u"primero"_s);
    Momento(9, 0, 1);
    ErrorADisco(u"f"_s, u"e"_s, u"segundo"_s);
    EXPECT_EQ(Registros(), (QStringList{u"Error07-07-04 09-00-00.log"_s, u"Error07-07-04 09-00-01.log"_s}));
}

TEST_F(ErrorADiscoTest, TwoErrorsInTheSameSecondOverwriteEachOther) {
    ErrorADisco(u"f"_s, u"e"_s, u"primero y bastante mas largo que el otro"_s);
    const QString ruta = ErrorADisco(u"f"_s, u"e"_s, u"segundo"_s);
    EXPECT_EQ(Registros().size(), 1);
    EXPECT_FALSE(Contenido(ruta).contains("primero"));
    EXPECT_TRUE(Contenido(ruta).contains("\r\nsegundo\r\n"));
    EXPECT_TRUE(Contenido(ruta).endsWith("_\r\n\r\n\r\n"));
}

TEST_F(ErrorADiscoTest, TheLogIsForTheUserAloneWhateverTheSettings) {
    const MascaraDePermisos permisos(0);
    EXPECT_EQ(PermisosDe(ErrorADisco(u"f"_s, u"e"_s, u"d"_s)), 0600U);
}

TEST_F(ErrorADiscoTest, ALinkThatBearsTheNameIsNeitherFollowedNorReplaced) {
    const QString nombre = carpeta.filePath(u"tmp/Error07-07-04 09-08-07"_s);
    for (const QString& blanco : {carpeta.filePath(u"de_otro"_s), carpeta.filePath(u"falta"_s)}) {
        EscribirFichero(carpeta.filePath(u"de_otro"_s), "Error generado el dia de otro");
        ASSERT_TRUE(QFile::link(blanco, nombre + u".log"_s));
        const QString ruta = ErrorADisco(u"f"_s, u"e"_s, u"primero"_s);
        EXPECT_EQ(ruta, QDir::toNativeSeparators(nombre + u" (2).log"_s));
        EXPECT_TRUE(Contenido(ruta).contains("primero"));
        EXPECT_EQ(LeerFichero(carpeta.filePath(u"de_otro"_s)), "Error generado el dia de otro");
        EXPECT_FALSE(QFile::exists(carpeta.filePath(u"falta"_s)));
        EXPECT_TRUE(QFileInfo(nombre + u".log"_s).isSymLink());
        QFile::remove(nombre + u".log"_s);
        QFile::remove(ruta);
    }
}

TEST_F(ErrorADiscoTest, AFileThatIsNoLogStaysAndTheLogIsNotLost) {
    const QString nombre = carpeta.filePath(u"tmp/Error07-07-04 09-08-07"_s);
    EscribirFichero(nombre + u".log"_s, "apuntes del usuario");
    QDir().mkpath(nombre + u" (2).log"_s);
    const QString ruta = ErrorADisco(u"f"_s, u"e"_s, u"d"_s);
    EXPECT_EQ(ruta, QDir::toNativeSeparators(nombre + u" (3).log"_s));
    EXPECT_TRUE(Contenido(ruta).startsWith("Error generado el "));
    EXPECT_EQ(LeerFichero(nombre + u".log"_s), "apuntes del usuario");
}

TEST_F(ErrorADiscoTest, AFolderThatCannotBeWrittenRaisesNothingAndStillGivesThePath) {
    Entorno().CarpetaTemporal = carpeta.filePath(u"no-existe"_s);
    QString ruta;
    EXPECT_NO_THROW(ruta = ErrorADisco(u"f"_s, u"e"_s, u"d"_s));
    EXPECT_EQ(ruta, carpeta.filePath(u"no-existe"_s) + QDir::separator() + u"Error07-07-04 09-08-07.log"_s);
    EXPECT_FALSE(QFile::exists(ruta));
}

TEST_F(ErrorADiscoTest, AllOpenFilesOfTheProgramAreClosed) {
    FicheroZT uno(carpeta.filePath(u"uno.txt"_s), QIODevice::WriteOnly);
    FicheroZT otro(carpeta.filePath(u"otro.txt"_s), QIODevice::WriteOnly);
    uno.Fichero().write("guardado");
    ErrorADisco(u"f"_s, u"e"_s, u"d"_s);
    EXPECT_FALSE(uno.Abierto());
    EXPECT_FALSE(otro.Abierto());
    EXPECT_EQ(NumeroDelError([&] { (void)uno.Fichero(); }), 52);
    EXPECT_EQ(Contenido(carpeta.filePath(u"uno.txt"_s)), QByteArray("guardado"));
}

TEST_F(ErrorADiscoTest, TheyAreClosedAlsoWhenTheLogCannotBeWritten) {
    FicheroZT fichero(carpeta.filePath(u"uno.txt"_s), QIODevice::WriteOnly);
    Entorno().CarpetaTemporal = carpeta.filePath(u"no-existe"_s);
    ErrorADisco(u"f"_s, u"e"_s, u"d"_s);
    EXPECT_FALSE(fichero.Abierto());
}

TEST_F(ErrorADiscoTest, TextOutsideTheCodePageDoesNotCostTheRestOfTheLog) {
    const QString ruta = ErrorADisco(u"f"_s, u"e"_s, u"C:\\Ωμέγα"_s);
    EXPECT_TRUE(Contenido(ruta).contains(u"C:\\Ωμέγα\r\n"_s.toUtf8()));
    EXPECT_TRUE(Contenido(ruta).contains(AWindows1252(u"en la máquina PC-7\r\n")));
    EXPECT_TRUE(Contenido(ruta).endsWith("_\r\n\r\n\r\n"));
}

TEST_F(ErrorADiscoTest, TheTemporaryFolderGetsOneSeparatorAtItsEnd) {
    Entorno().CarpetaTemporal = u"carpeta"_s;
    EXPECT_EQ(pathTemporal(), u"carpeta"_s + QDir::separator());
    Entorno().CarpetaTemporal = u"carpeta"_s + QDir::separator();
    EXPECT_EQ(pathTemporal(), u"carpeta"_s + QDir::separator());
}

TEST_F(ErrorADiscoTest, WithoutATemporaryFolderOrAMachineNameTheTextIsEmpty) {
    Entorno().CarpetaTemporal.clear();
    Entorno().NombreMaquina.clear();
    EXPECT_EQ(pathTemporal(), QString());
    EXPECT_EQ(NombrePC(), QString());
}
