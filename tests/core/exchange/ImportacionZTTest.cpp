#include "core/exchange/ImportacionZT.h"

#include <sys/stat.h>

#include <functional>

#include "core/exchange/EscritorDeLineas.h"
#include "core/exchange/RegistroDeIntercambio.h"
#include "core/exchange/cZTImportaciones.h"
#include "core/records/cZTDeclarante.h"
#include "core/run/Textos.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "tests/support/AlmacenNegado.h"
#include "tests/support/DatosDeIntercambio.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/SinPrivilegios.h"

using namespace Qt::StringLiterals;

namespace {

using Cuentas = std::vector<qint32>;

class ImportacionZTTest : public EntornoDePrueba {
  protected:
    static svrZELT::cZTDeclarante Servidor() {
        svrZELT::cZTDeclarante servidor;
        servidor.mdbmod = Entorno().mdbmod;
        return servidor;
    }
    static qint32 Guardar(const QString& nif, const QString& nombre) {
        return Servidor().GuardarDeclarante(DeclaranteDePrueba(nif, nombre));
    }
    static QString NombreDe(const QString& nif) {
        Registro declarante;
        Servidor().CargarDeclarante(Servidor().NifRepetido(nif), declarante);
        return declarante.at(2).aTexto();
    }
    static int CuantosHay() {
        const Tabla declarantes = Servidor().ObtenerDeclarantes();
        return declarantes.EsNula() ? 0 : declarantes.UltimaFila();
    }
    static QByteArray Linea(const QString& nif, const QString& nombre) {
        return LineaDeDeclarante(DeclaranteDePrueba(nif, nombre)).toLatin1() + "\r\n";
    }
    /// A line with a bad NIF and no name.
    static QByteArray LineaConDosFaltas() { return Linea(u"12345678A"_s, QString()); }

    void Importar(const QByteArray& contenido) {
        EscribirFichero(ruta, contenido);
        Import(ruta, formulario);
    }
    static bool HayResultados() {
        return std::holds_alternative<Registro>(oImportaciones().vBufferImportados);
    }
    /// Imported, faulty, replaced, ignored, and their sum.
    static Cuentas Resultados() {
        Cuentas cuentas;
        const auto& resultados = std::get<Registro>(oImportaciones().vBufferImportados);
        for (int i = 0; i < 5; ++i) {
            cuentas.push_back(Elemento(resultados, i).aEntero32());
        }
        return cuentas;
    }

    QString ruta = carpeta.filePath(u"Declaran.txt"_s);
    PantallaDeImportacionGrabadora formulario;
};

}  // namespace

TEST_F(ImportacionZTTest, NewDeclarantsAreStoredAndCounted) {
    Importar(Linea(u"12345678Z"_s, u"UNO"_s) + Linea(u"00000000T"_s, u"DOS"_s));
    EXPECT_EQ(Resultados(), (Cuentas{2, 0, 0, 0, 2}));
    EXPECT_EQ(NombreDe(u"12345678Z"_s), u"UNO"_s);
    EXPECT_EQ(NombreDe(u"00000000T"_s), u"DOS"_s);
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_EQ(formulario.pasos, QStringList({u"barra"_s, u"1/2"_s, u"2/2"_s}));
}

TEST_F(ImportacionZTTest, TheResultsHaveNineElementsAndTheIdleOnesAreZero) {
    Importar(Linea(u"12345678Z"_s, u"UNO"_s));
    const auto& resultados = std::get<Registro>(oImportaciones().vBufferImportados);
    ASSERT_EQ(resultados.size(), 9U);
    for (int i = 5; i <= 8; ++i) {
        EXPECT_EQ(Elemento(resultados, i).aEntero32(), 0);
    }
}

TEST_F(ImportacionZTTest, AFileWithNoLinesCountsZeroAndEmptiesTheFileOfFaults) {
    EscribirFichero(RutaDeErrores(), "antes");
    Importar(QByteArray());
    EXPECT_EQ(Resultados(), (Cuentas{0, 0, 0, 0, 0}));
    EXPECT_TRUE(QFile::exists(RutaDeErrores()));
    EXPECT_TRUE(LeerFichero(RutaDeErrores()).isEmpty());
    EXPECT_TRUE(formulario.pasos.isEmpty());
}

TEST_F(ImportacionZTTest, EveryFaultOfALineIsALineOfTheFileOfFaults) {
    Importar(Linea(u"12345678Z"_s, u"UNO"_s) + LineaConDosFaltas());
    EXPECT_EQ(Resultados(), (Cuentas{1, 1, 0, 0, 2}));
    EXPECT_EQ(QString::fromLatin1(LeerFichero(RutaDeErrores())),
              u"Linea 2 - NIF 12345678A: El NIF es erróneo o carece de dígito de control\r\n"
              u"Linea 2 - NIF 12345678A: Falta el nombre del declarante\r\n"_s);
}

TEST_F(ImportacionZTTest, TheFileOfFaultsIsInTheLanguageInForce) {
    Entorno().OffsetIdioma = 1000;
    Importar(LineaConDosFaltas());
    EXPECT_EQ(QString::fromLatin1(LeerFichero(RutaDeErrores())),
              u"Lerroa 1 - IFK 12345678A: IFZ okerra da edo kontrol-digitua falta zaio\r\n"
              u"Lerroa 1 - IFK 12345678A: Aitortzailearen izena falta da\r\n"_s);
}

TEST_F(ImportacionZTTest, ASecondImportOverwritesTheFileOfFaults) {
    Importar(LineaConDosFaltas());
    EXPECT_FALSE(LeerFichero(RutaDeErrores()).isEmpty());
    Importar(Linea(u"12345678Z"_s, u"UNO"_s));
    EXPECT_TRUE(LeerFichero(RutaDeErrores()).isEmpty());
    EXPECT_EQ(Resultados(), (Cuentas{1, 0, 0, 0, 1}));
}

TEST_F(ImportacionZTTest, ARepeatedNifIsAskedForAndReplacesTheDeclarant) {
    const qint32 CSDE = Guardar(u"12345678Z"_s, u"ANTES"_s);
    Importar(Linea(u"12345678Z"_s, u"AHORA"_s));
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes.front().texto, Texto(122) + u"12345678Z"_s + Texto(123));
    EXPECT_EQ(pantalla.mensajes.front().titulo, Texto(16));
    EXPECT_FALSE(pantalla.mensajes.front().unBoton);
    EXPECT_EQ(Resultados(), (Cuentas{0, 0, 1, 0, 1}));
    EXPECT_EQ(NombreDe(u"12345678Z"_s), u"AHORA"_s);
    EXPECT_EQ(Servidor().NifRepetido(u"12345678Z"_s), CSDE);
    EXPECT_EQ(CuantosHay(), 1);
}

TEST_F(ImportacionZTTest, TheQuestionIsInTheLanguageInForce) {
    Guardar(u"12345678Z"_s, u"ANTES"_s);
    Entorno().OffsetIdioma = 1000;
    Importar(Linea(u"12345678Z"_s, u"AHORA"_s));
    EXPECT_EQ(pantalla.mensajes.front().texto, TextoDeFila(1122) + u"12345678Z"_s + TextoDeFila(1123));
    EXPECT_EQ(pantalla.mensajes.front().titulo, TextoDeFila(1016));
}

TEST_F(ImportacionZTTest, TheAnswerToCancelCountsOneIgnoredAndChangesNothing) {
    Guardar(u"12345678Z"_s, u"ANTES"_s);
    pantalla.respuesta = kRespuestaCancelar;
    Importar(Linea(u"12345678Z"_s, u"AHORA"_s) + Linea(u"00000000T"_s, u"DOS"_s));
    EXPECT_EQ(Resultados(), (Cuentas{1, 0, 0, 1, 2}));
    EXPECT_EQ(NombreDe(u"12345678Z"_s), u"ANTES"_s);
}

TEST_F(ImportacionZTTest, TheAutomaticModeReplacesWithoutAQuestion) {
    Guardar(u"12345678Z"_s, u"ANTES"_s);
    formulario.automatico = true;
    Importar(Linea(u"12345678Z"_s, u"AHORA"_s) + Linea(u"00000000T"_s, u"DOS"_s));
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_EQ(Resultados(), (Cuentas{1, 0, 1, 0, 2}));
    EXPECT_EQ(NombreDe(u"12345678Z"_s), u"AHORA"_s);
    EXPECT_EQ(CuantosHay(), 2);
}

TEST_F(ImportacionZTTest, ALineThatRepeatsAnEarlierOneOfTheFileReplacesIt) {
    formulario.automatico = true;
    Importar(Linea(u"12345678Z"_s, u"UNO"_s) + Linea(u"12345678Z"_s, u"OTRO"_s));
    EXPECT_EQ(Resultados(), (Cuentas{1, 0, 1, 0, 2}));
    EXPECT_EQ(NombreDe(u"12345678Z"_s), u"OTRO"_s);
}

TEST_F(ImportacionZTTest, TheTotalIsTheNumberOfLinesAndTheBarCountsThemAll) {
    Guardar(u"12345678Z"_s, u"ANTES"_s);
    pantalla.respuesta = kRespuestaCancelar;
    Importar(Linea(u"12345678Z"_s, u"AHORA"_s) + "\r\n" + Linea(u"00000000T"_s, u"DOS"_s) + "corta");
    EXPECT_EQ(Resultados(), (Cuentas{1, 2, 0, 1, 4}));
    EXPECT_EQ(formulario.pasos, QStringList({u"barra"_s, u"1/4"_s, u"2/4"_s, u"3/4"_s, u"4/4"_s}));
}

TEST_F(ImportacionZTTest, AnEmptyLineFailsAndIsNamedWithoutANif) {
    Importar("\r\n");
    EXPECT_EQ(Resultados(), (Cuentas{0, 1, 0, 0, 1}));
    EXPECT_TRUE(LeerFichero(RutaDeErrores()).startsWith("Linea 1 - NIF : El NIF"));
}

TEST_F(ImportacionZTTest, TheEndsOfLinesOfOtherSystemsAreRead) {
    const QByteArray uno = Linea(u"12345678Z"_s, u"UNO"_s).chopped(2);
    const QByteArray dos = Linea(u"00000000T"_s, u"DOS"_s).chopped(2);
    Importar(uno + '\n' + dos + '\r' + "99999999R" + uno.mid(9));
    EXPECT_EQ(Resultados(), (Cuentas{3, 0, 0, 0, 3}));
    EXPECT_EQ(NombreDe(u"99999999R"_s), u"UNO"_s);
}

TEST_F(ImportacionZTTest, ImportingIsNoChangeOfTheDeclarantInHand) {
    oDeclarante().Modificado = true;
    Importar(Linea(u"12345678Z"_s, u"UNO"_s));
    EXPECT_FALSE(oDeclarante().Modificado);
}

TEST_F(ImportacionZTTest, AFileThatIsNotThereIsShownAndLeavesNoResults) {
    Importar(Linea(u"12345678Z"_s, u"UNO"_s));
    Import(carpeta.filePath(u"no_hay.txt"_s), formulario);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"Importacion.Import"_s);
    EXPECT_TRUE(pantalla.errores.front().descripcion.startsWith(u"Importacion.Import\r\nNo se encontró"));
    EXPECT_TRUE(pantalla.errores.front().descripcion.endsWith(u"no_hay.txt"));
    EXPECT_FALSE(HayResultados());
}

TEST_F(ImportacionZTTest, AFolderIsShownWithItsName) {
    Import(carpeta.path(), formulario);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_TRUE(pantalla.errores.front().descripcion.contains(u"Error de acceso a la ruta o al archivo: "_s +
                                                              carpeta.path()));
    EXPECT_FALSE(HayResultados());
}

TEST_F(ImportacionZTTest, APipeIsRefusedInsteadOfWaitedFor) {
    const QString tuberia = carpeta.filePath(u"tuberia"_s);
    ASSERT_EQ(mkfifo(qUtf8Printable(tuberia), S_IRUSR | S_IWUSR), 0);
    Import(tuberia, formulario);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"Importacion.Import"_s);
    EXPECT_TRUE(pantalla.errores.front().descripcion.contains(tuberia + u". No es un fichero corriente"_s));
    EXPECT_FALSE(HayResultados());
}

TEST_F(ImportacionZTTest, ADeviceIsRefused) {
    Import(u"/dev/zero"_s, formulario);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_TRUE(pantalla.errores.front().descripcion.contains(u"/dev/zero. No es un fichero corriente"));
}

TEST_F(ImportacionZTTest, ALinkToAFileIsReadLikeTheFile) {
    EscribirFichero(ruta, Linea(u"12345678Z"_s, u"UNO"_s));
    const QString enlace = carpeta.filePath(u"enlace.txt"_s);
    ASSERT_TRUE(QFile::link(ruta, enlace));
    Import(enlace, formulario);
    EXPECT_EQ(Resultados(), (Cuentas{1, 0, 0, 0, 1}));
}

TEST_F(ImportacionZTTest, TheFileOfFaultsIsNotImportedNorEmptied) {
    const QByteArray contenido = Linea(u"12345678Z"_s, u"UNO"_s);
    EscribirFichero(RutaDeErrores(), contenido);
    const QString enlace = carpeta.filePath(u"enlace.txt"_s);
    ASSERT_TRUE(QFile::link(RutaDeErrores(), enlace));
    for (const QString& fichero : {RutaDeErrores(), enlace}) {
        pantalla.errores.clear();
        Import(fichero, formulario);
        ASSERT_EQ(pantalla.errores.size(), 1U);
        EXPECT_EQ(pantalla.errores.front().evento, u"Importacion.Import"_s);
        EXPECT_TRUE(pantalla.errores.front().descripcion.contains(
            fichero + u". En este fichero se anotan los errores de la importación"_s));
        EXPECT_EQ(LeerFichero(RutaDeErrores()), contenido);
        EXPECT_FALSE(HayResultados());
    }
    EXPECT_EQ(CuantosHay(), 0);
}

namespace {

/// Does something when the bar is shown: the file has been counted by then, and no line has been taken.
class PantallaQueActua : public PantallaDeImportacionGrabadora {
  public:
    explicit PantallaQueActua(std::function<void()> accion) : m_accion(std::move(accion)) {}
    void MostrarBarra() override { m_accion(); }

  private:
    std::function<void()> m_accion;
};

/// Puts a store in the place of the user's after the first line, as a restore of another program does.
class PantallaQueRestaura : public PantallaDeImportacionGrabadora {
  public:
    explicit PantallaQueRestaura(QString copia) : m_copia(std::move(copia)) {}
    void Avanzar(int hechos, int /*total*/) override {
        if (hechos == 1) {
            QFile::remove(Entorno().mdbmod);
            QFile::rename(m_copia, Entorno().mdbmod);
        }
    }

  private:
    QString m_copia;
};

}  // namespace

TEST_F(ImportacionZTTest, TheFileIsOpenForItsLinesBeforeTheFileOfFaultsAndTheBar) {
    EscribirFichero(ruta, Linea(u"12345678Z"_s, u"UNO"_s));
    PantallaQueActua otra([this] { QFile::remove(ruta); });
    Import(ruta, otra);
    EXPECT_TRUE(pantalla.errores.empty());
    EXPECT_EQ(Resultados(), (Cuentas{1, 0, 0, 0, 1}));
}

TEST_F(ImportacionZTTest, AFileInUtf8IsReadAsSuchWhenTheUserSaysSo) {
    const QByteArray lineas =
        "\xEF\xBB\xBF" + LineaDeDeclarante(DeclaranteDePrueba(u"12345678Z"_s, u"MUÑOZ"_s)).toUtf8() + "\r\n" +
        LineaDeDeclarante(DeclaranteDePrueba(u"00000000T"_s, u"ÁÉÍÓÚÇ"_s)).toUtf8();
    formulario.enUtf8 = true;
    Importar(lineas);
    EXPECT_EQ(Resultados(), (Cuentas{2, 0, 0, 0, 2}));
    EXPECT_EQ(NombreDe(u"12345678Z"_s), u"MUÑOZ"_s);
    EXPECT_EQ(NombreDe(u"00000000T"_s), u"ÁÉÍÓÚÇ"_s);
}

TEST_F(ImportacionZTTest, AStoreThatAnotherProgramReplacesMeanwhileIsToldAndEndsTheRun) {
    EscribirFichero(ruta, Linea(u"12345678Z"_s, u"UNO"_s) + Linea(u"00000000T"_s, u"DOS"_s));
    const QString otro = Entorno().mdbmod + u".otro"_s;
    ASSERT_TRUE(QFile::copy(Entorno().mdbmod, otro));
    PantallaQueRestaura quienRestaura(otro);
    Import(ruta, quienRestaura);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_TRUE(pantalla.errores.front().descripcion.contains(
        u"Otro programa ha restaurado una copia durante la importación"));
    EXPECT_TRUE(pantalla.errores.front().descripcion.endsWith(u"(línea 2)"));
    EXPECT_FALSE(HayResultados());
    EXPECT_EQ(CuantosHay(), 0);
}

TEST_F(ImportacionZTTest, AFileWithoutReadRightsIsShownWithItsName) {
    EscribirFichero(ruta, Linea(u"12345678Z"_s, u"UNO"_s));
    {
        const SinPrivilegios otro({carpeta.path(), ruta});
        ASSERT_TRUE(QFile::setPermissions(ruta, QFileDevice::Permissions()));
        Import(ruta, formulario);
    }
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_TRUE(pantalla.errores.front().descripcion.contains(u"Permiso denegado: "_s + ruta));
    EXPECT_EQ(CuantosHay(), 0);
}

TEST_F(ImportacionZTTest, AFileThatIsNotTextIsShownWithItsNameAndStoresNothing) {
    Importar(Linea(u"12345678Z"_s, u"UNO"_s) + QByteArray(3, '\0'));
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_TRUE(pantalla.errores.front().descripcion.contains(ruta + u": el fichero no es de texto"_s));
    EXPECT_EQ(CuantosHay(), 0);
    EXPECT_FALSE(HayResultados());
}

TEST_F(ImportacionZTTest, MoreLinesThanTheCounterHoldsOverflowBeforeAnythingIsStored) {
    Importar(Linea(u"12345678Z"_s, u"UNO"_s) + QByteArray("\n").repeated(32'767));
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_TRUE(pantalla.errores.front().descripcion.contains(u"más de 32767 líneas"));
    EXPECT_EQ(CuantosHay(), 0);
}

TEST_F(ImportacionZTTest, ANumberThatOverflowsEndsTheRunAndWhatWasStoredStays) {
    QByteArray mala = Linea(u"00000000T"_s, u"DOS"_s);
    mala.replace(130, 3, "9E9");
    Importar(Linea(u"12345678Z"_s, u"UNO"_s) + mala + Linea(u"99999999R"_s, u"TRES"_s));
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"Importacion.ImportarDeclarantes"_s);
    EXPECT_EQ(pantalla.errores.front().descripcion,
              u"Importacion.ImportarDeclarantes\r\nDesbordamiento (línea 2)"_s);
    EXPECT_EQ(CuantosHay(), 1);
    EXPECT_EQ(NombreDe(u"12345678Z"_s), u"UNO"_s);
    EXPECT_FALSE(HayResultados());
}

TEST_F(ImportacionZTTest, TheProgramsOwnCausesAreInTheLanguageInForce) {
    Entorno().OffsetIdioma = 1000;
    const auto causa = [this](const QByteArray& contenido) {
        pantalla.errores.clear();
        Importar(contenido);
        return pantalla.errores.size() == 1 ? pantalla.errores.front().descripcion : QString();
    };
    QByteArray mala = Linea(u"00000000T"_s, u"DOS"_s);
    mala.replace(130, 3, "9E9");
    EXPECT_TRUE(causa(mala).endsWith(u"(1. lerroa)"));
    EXPECT_TRUE(causa(QByteArray(3, '\0')).endsWith(u"karaktere nulua dauka"));
    EXPECT_TRUE(causa(QByteArray("\n").repeated(32'768)).endsWith(u"32767 lerro baino gehiago ditu."));
    Import(u"/dev/zero"_s, formulario);
    EXPECT_TRUE(pantalla.errores.back().descripcion.contains(u"Ez da fitxategi arrunta"));
}

TEST_F(ImportacionZTTest, TheTelephoneOfTheLineIsStored) {
    Importar(Linea(u"12345678Z"_s, u"UNO"_s));
    Registro declarante;
    Servidor().CargarDeclarante(Servidor().NifRepetido(u"12345678Z"_s), declarante);
    EXPECT_EQ(declarante.at(14).aEntero16(), 943);
    EXPECT_EQ(declarante.at(15).aEntero32(), 123'456);
}

TEST_F(ImportacionZTTest, AStoreThatRefusesIsShownOnceWithItsCause) {
    NegarEscritura(true);
    Importar(Linea(u"12345678Z"_s, u"UNO"_s));
    NegarEscritura(false);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"Importacion.ImportarDeclarantes"_s);
    EXPECT_TRUE(pantalla.errores.front().descripcion.contains(u"solo lectura"));
    EXPECT_FALSE(HayResultados());
}

TEST_F(ImportacionZTTest, AFileOfFaultsThatCannotBeMadeIsShownWithItsName) {
    QDir().mkpath(RutaDeErrores());
    Importar(Linea(u"12345678Z"_s, u"UNO"_s));
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_TRUE(pantalla.errores.front().descripcion.contains(u"Errores.log"));
    EXPECT_EQ(CuantosHay(), 0);
}

TEST_F(ImportacionZTTest, ACodeWithoutAMessageRepeatsTheTextBefore) {
    EscritorDeLineas fichero(ruta);
    GrabarErrores({Valor(), qint16{20}, qint16{2}, qint16{19}, qint16{26}}, 7, fichero, u"X"_s);
    fichero.Cerrar();
    EXPECT_EQ(LeerFichero(ruta), QByteArray("Linea 7 - NIF X: \r\n"
                                            "Linea 7 - NIF X: Falta el nombre del declarante\r\n"
                                            "Linea 7 - NIF X: Falta el nombre del declarante\r\n"
                                            "Linea 7 - NIF X: Falta el nombre del declarante\r\n"));
}

TEST_F(ImportacionZTTest, AKeyOfZeroMakesANewDeclarantAndAnotherOneReplaces) {
    oImportaciones().vBufferImportados =
        TrocearRegistro(LineaDeDeclarante(DeclaranteDePrueba(u"12345678Z"_s, u"UNO"_s)));
    oImportaciones().ImportarDeclarante();
    const qint32 CSDE = Servidor().NifRepetido(u"12345678Z"_s);
    oImportaciones().vBufferImportados =
        TrocearRegistro(LineaDeDeclarante(DeclaranteDePrueba(u"00000000T"_s, u"DOS"_s)));
    oImportaciones().ImportarDeclarante(CSDE);
    EXPECT_EQ(std::get<Tabla>(oImportaciones().vBufferImportados)(0, 0), Valor(CSDE));
    EXPECT_EQ(CuantosHay(), 1);
    EXPECT_EQ(Servidor().NifRepetido(u"00000000T"_s), CSDE);
}
