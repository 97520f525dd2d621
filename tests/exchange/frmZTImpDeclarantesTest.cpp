#include "exchange/frmZTImpDeclarantes.h"

#include <QCheckBox>

#include "declarants/cZTDeclarante.h"
#include "exchange/BarraDeProgreso.h"
#include "shell/PantallaQt.h"
#include "shell/Textos.h"
#include "tests/exchange/PruebaDeIntercambio.h"

using namespace Qt::StringLiterals;

namespace {

class frmZTImpDeclarantesTest : public PruebaDeIntercambio {
  protected:
    void SetUp() override {
        PruebaDeIntercambio::SetUp();
        fichero = EnCarpeta(u"Declaran.txt"_s);
    }
    void AbrirImportar() { Abrir(frmZTImpDeclarantes::kNombre); }
    void Importar(const QByteArray& contenido) {
        EscribirFichero(fichero, contenido);
        AbrirImportar();
        Pulsar(u"cmdAceptar"_s);
    }
    static bool Abierto() { return Formularios::Cargado(frmZTImpDeclarantes::kNombre.toString()); }
    [[nodiscard]] bool AntesDeImportar() const {
        return SeVe(u"cmdAceptar"_s) && SeVe(u"picAceptar"_s) && SeVe(u"cmdCancelar"_s) &&
               SeVe(u"picCancelar"_s) && !SeVe(u"CmdContinuar"_s) && !SeVe(u"picContinuar"_s) &&
               !SeVe(u"lblAviso"_s);
    }
    [[nodiscard]] bool Importado() const {
        return !SeVe(u"cmdAceptar"_s) && !SeVe(u"picAceptar"_s) && !SeVe(u"cmdCancelar"_s) &&
               !SeVe(u"picCancelar"_s) && SeVe(u"CmdContinuar"_s) && SeVe(u"picContinuar"_s) &&
               SeVe(u"lblAviso"_s);
    }
    /// The counters as the form shows them, the sum last.
    [[nodiscard]] QStringList Cuentas() const {
        QStringList cuentas;
        for (const QString& etiqueta :
             {u"lblNumImp"_s, u"lblNumInc"_s, u"lblNumSus"_s, u"lblNumIgn"_s, u"lblNumTot"_s}) {
            cuentas += TextoDe(etiqueta);
        }
        return cuentas;
    }

    QString fichero;
    PantallaQt deVerdad;
};

}  // namespace

TEST_F(frmZTImpDeclarantesTest, CaptionsAreInTheLanguageInForce) {
    for (const qint16 idioma : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = idioma;
        AbrirImportar();
        EXPECT_EQ(formulario->windowTitle(), TextoDeFila(119 + idioma));
        for (const auto& [control, texto] : {std::pair{u"cmdAceptar"_s, 28},
                                             {u"cmdCancelar"_s, 29},
                                             {u"CmdContinuar"_s, 111},
                                             {u"cmdModificar"_s, 109},
                                             {u"lblImportados"_s, 114},
                                             {u"lblIncorrectos"_s, 115},
                                             {u"lblSustituidos"_s, 116},
                                             {u"lblTotal"_s, 117},
                                             {u"lblDeclarantes"_s, 31},
                                             {u"chkAutomatico"_s, 118},
                                             {u"lblFicheroErrores"_s, 121},
                                             {u"lblAviso"_s, 110},
                                             {u"lblDecIgn"_s, 202}}) {
            EXPECT_EQ(TextoDe(control), TextoDeFila(texto + idioma)) << control.toStdString();
        }
        Formularios::Descargar(frmZTImpDeclarantes::kNombre.toString());
    }
}

TEST_F(frmZTImpDeclarantesTest, ItStartsWithTheSuggestedFileAndNothingCounted) {
    oDeclarante().CSDE = 7;
    AbrirImportar();
    EXPECT_EQ(TextoDe(u"lblFichero"_s), fichero);
    EXPECT_EQ(TextoDe(u"lblFicheroErroresFich"_s), EnCarpeta(u"Errores.log"_s));
    EXPECT_TRUE(AntesDeImportar());
    for (const QString& oculto :
         {u"lblFicheroErrores"_s, u"lblFicheroErroresFich"_s, u"shpFondo"_s, u"shpBarra"_s}) {
        EXPECT_FALSE(SeVe(oculto)) << oculto.toStdString();
    }
    EXPECT_EQ(Cuentas(), QStringList(5, QString()));
    EXPECT_EQ(oDeclarante().CSDE, 0);
    EXPECT_FALSE(MenusHabilitados());
    EXPECT_EQ(Foco(), u"cmdAceptar"_s);
}

TEST_F(frmZTImpDeclarantesTest, AnImportShowsItsCountersAndGoesOn) {
    Guardar(u"12345678Z"_s, u"ANTES"_s);
    Importar(Linea(u"12345678Z"_s, u"UNO"_s) + Linea(u"00000000T"_s, u"DOS"_s));
    EXPECT_EQ(Cuentas(), QStringList({u"1"_s, u"0"_s, u"1"_s, u"0"_s, u"2"_s}));
    EXPECT_TRUE(Importado());
    EXPECT_FALSE(SeVe(u"lblFicheroErrores"_s));
    EXPECT_TRUE(SeVe(u"shpFondo"_s));
    EXPECT_DOUBLE_EQ(BarraLlena(), 1.0);
    EXPECT_EQ(Foco(), u"CmdContinuar"_s);
    Tecla(Qt::Key_Return);
    EXPECT_FALSE(Abierto());
    EXPECT_TRUE(MenusHabilitados());
}

TEST_F(frmZTImpDeclarantesTest, FaultyLinesShowTheFileOfFaultsWhichIsItsOwnToolTip) {
    Importar("\r\n" + Linea(u"00000000T"_s, u"DOS"_s));
    EXPECT_EQ(Cuentas(), QStringList({u"1"_s, u"1"_s, u"0"_s, u"0"_s, u"2"_s}));
    EXPECT_TRUE(SeVe(u"lblFicheroErrores"_s));
    EXPECT_TRUE(SeVe(u"lblFicheroErroresFich"_s));
    const QWidget& etiqueta = Control(u"lblFicheroErroresFich"_s);
    EXPECT_TRUE(etiqueta.toolTip().isEmpty());
    QTest::mouseMove(marco->windowHandle(), etiqueta.mapTo(marco, etiqueta.rect().center()));
    EXPECT_EQ(etiqueta.toolTip(), EnCarpeta(u"Errores.log"_s));
}

TEST_F(frmZTImpDeclarantesTest, AFileWithNoLinesShowsZerosAndNoBar) {
    Importar(QByteArray());
    EXPECT_EQ(Cuentas(), QStringList(5, u"0"_s));
    EXPECT_FALSE(SeVe(u"shpFondo"_s));
    EXPECT_TRUE(Importado());
    EXPECT_TRUE(QFile::exists(EnCarpeta(u"Errores.log"_s)));
}

TEST_F(frmZTImpDeclarantesTest, AFileThatIsNotThereEndsInTheErrorDialogAndTheFormStays) {
    AbrirImportar();
    Pulsar(u"picAceptar"_s);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"Importacion.Import"_s);
    EXPECT_TRUE(pantalla.errores.front().descripcion.contains(fichero));
    EXPECT_TRUE(AntesDeImportar());
    EXPECT_EQ(Cuentas(), QStringList(5, QString()));
    EscribirFichero(fichero, Linea(u"00000000T"_s, u"DOS"_s));
    Pulsar(u"cmdAceptar"_s);
    EXPECT_EQ(Cuentas().constFirst(), u"1"_s);
}

TEST_F(frmZTImpDeclarantesTest, AFailureInMidRunShowsNoCountersAndTheFormCanBeLeft) {
    QByteArray mala = Linea(u"00000000T"_s, u"DOS"_s);
    mala.replace(130, 3, "9E9");
    Importar(Linea(u"12345678Z"_s, u"UNO"_s) + mala);
    EXPECT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(Cuentas(), QStringList(5, QString()));
    EXPECT_TRUE(AntesDeImportar());
    Pulsar(u"cmdCancelar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_TRUE(MenusHabilitados());
    EXPECT_TRUE(marco->findChild<QAction*>(u"mnuExport"_s)->isEnabled());
}

TEST_F(frmZTImpDeclarantesTest, TheAutomaticModeWarnsWhenItIsChosenAndOnlyThen) {
    AbrirImportar();
    IrA(u"chkAutomatico"_s);
    Tecla(Qt::Key_Space);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes.front().texto, Texto(120));
    EXPECT_TRUE(pantalla.mensajes.front().unBoton);
    Tecla(Qt::Key_Space);
    EXPECT_FALSE(Control<QCheckBox>(u"chkAutomatico"_s).isChecked());
    EXPECT_EQ(pantalla.mensajes.size(), 1U);
}

TEST_F(frmZTImpDeclarantesTest, TheAutomaticModeReplacesWithoutAQuestion) {
    Guardar(u"12345678Z"_s, u"ANTES"_s);
    EscribirFichero(fichero, Linea(u"12345678Z"_s, u"UNO"_s));
    AbrirImportar();
    Pulsar(u"chkAutomatico"_s);
    pantalla.mensajes.clear();
    Pulsar(u"cmdAceptar"_s);
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_EQ(Cuentas(), QStringList({u"0"_s, u"0"_s, u"1"_s, u"0"_s, u"1"_s}));
}

TEST_F(frmZTImpDeclarantesTest, AMissingTextOfTheWarningIsShownUnderItsFixedName) {
    AbrirImportar();
    Entorno().OffsetIdioma = kIdiomaSinTextos;
    Pulsar(u"chkAutomatico"_s);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmNotImportar.chkAutomatico_Click"_s);
}

TEST_F(frmZTImpDeclarantesTest, AnotherFileIsChosenInTheFileDialogForReading) {
    const QString otro = EnCarpeta(u"otro.txt"_s);
    EscribirFichero(otro, Linea(u"00000000T"_s, u"DOS"_s));
    AbrirImportar();
    ResponderConFichero(otro);
    Tecla(Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(TextoDe(u"lblFichero"_s), otro);
    Pulsar(u"cmdAceptar"_s);
    EXPECT_EQ(Cuentas().constFirst(), u"1"_s);
}

TEST_F(frmZTImpDeclarantesTest, CancellingTheFileDialogLeavesTheFile) {
    AbrirImportar();
    bool visto = false;
    CuandoSeExamine([&visto](QFileDialog& dialogo) {
        visto = true;
        EXPECT_EQ(dialogo.windowTitle(), u"Cambiar fichero de salida"_s);
        EXPECT_EQ(dialogo.acceptMode(), QFileDialog::AcceptOpen);
        QTest::keyClick(&dialogo, Qt::Key_Escape);
    });
    Pulsar(u"cmdModificar"_s);
    EXPECT_TRUE(visto);
    EXPECT_EQ(TextoDe(u"lblFichero"_s), fichero);
}

TEST_F(frmZTImpDeclarantesTest, NoInputStartsASecondImportOrClosesTheFormUnderIt) {
    EscribirFichero(fichero, Linea(u"12345678Z"_s, u"UNO"_s) + Linea(u"00000000T"_s, u"DOS"_s));
    AbrirImportar();
    MolestarDuranteElTrabajo();
    formulario->findChild<QAbstractButton*>(u"cmdAceptar"_s)->click();
    EXPECT_TRUE(molestado);
    EXPECT_TRUE(Abierto());
    EXPECT_EQ(terminado, -1);
    EXPECT_EQ(Cuentas(), QStringList({u"2"_s, u"0"_s, u"0"_s, u"0"_s, u"2"_s}));
    EXPECT_TRUE(pantalla.mensajes.empty());
    // With the work done, input counts again.
    Tecla(Qt::Key_C, Qt::AltModifier);
    EXPECT_FALSE(Abierto());
}

TEST_F(frmZTImpDeclarantesTest, TheBarGrowsInStepWithTheWorkAndWithTheWindow) {
    AbrirImportar();
    auto& barra = Control<BarraDeProgreso>(u"shpFondo"_s);
    barra.Empezar();
    EXPECT_DOUBLE_EQ(BarraLlena(), 0.0);
    barra.Avanzar(1, 4);
    EXPECT_NEAR(BarraLlena(), 0.25, 0.01);
    formulario->parentWidget()->resize(formulario->parentWidget()->size() + QSize(200, 0));
    QCoreApplication::processEvents();
    EXPECT_NEAR(BarraLlena(), 0.25, 0.01);
    barra.Avanzar(4, 4);
    EXPECT_DOUBLE_EQ(BarraLlena(), 1.0);
    EXPECT_EQ(barra.accessibleDescription(), u"100%"_s);
}

TEST_F(frmZTImpDeclarantesTest, TheQuestionOfTheImportTakesItsInput) {
    Guardar(u"12345678Z"_s, u"ANTES"_s);
    FijarPantalla(&deVerdad);
    EscribirFichero(fichero, Linea(u"12345678Z"_s, u"UNO"_s));
    AbrirImportar();
    bool preguntado = false;
    CuandoAparezca(u"frmZTMsgBox"_s, [&](QWidget& pregunta) {
        preguntado = true;
        ASSERT_TRUE(QTest::qWaitForWindowActive(&pregunta));
        QTest::keyClick(pregunta.windowHandle(), Qt::Key_Escape);
    });
    Tecla(Qt::Key_Return);
    FijarPantalla(&pantalla);
    EXPECT_TRUE(preguntado);
    EXPECT_EQ(Cuentas(), QStringList({u"0"_s, u"0"_s, u"0"_s, u"1"_s, u"1"_s}));
}
