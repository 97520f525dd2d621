#include "forms/exchange/frmZTImpDeclarantes.h"

#include <QCheckBox>
#include <functional>
#include <utility>

#include "core/records/cZTDeclarante.h"
#include "core/run/Textos.h"
#include "forms/messages/PantallaQt.h"
#include "forms/widgets/BarraDeProgreso.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/PruebaDeIntercambio.h"

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

    [[nodiscard]] static QByteArray Lineas(int cuantas) {
        QByteArray lineas;
        for (int i = 1; i <= cuantas; ++i) {
            lineas += Linea(NifDePersona(i), u"NOMBRE %1"_s.arg(i));
        }
        return lineas;
    }
    /// A file whose second line ends the import.
    [[nodiscard]] static QByteArray LineasQueFallan() {
        QByteArray mala = Linea(u"00000000T"_s, u"DOS"_s);
        mala.replace(130, 3, "9E9");
        return Linea(u"12345678Z"_s, u"UNO"_s) + mala;
    }

    QString fichero;
    PantallaQt deVerdad;
};

/// Counts how often the bar is painted while it is neither empty nor full, and does something at the first
/// time that it is half full.
class TestigoDeLaBarra : public QObject {
  public:
    TestigoDeLaBarra(QWidget& fondo, QWidget& barra, std::function<void()> aLaMitad)
        : m_fondo(fondo), m_barra(barra), m_aLaMitad(std::move(aLaMitad)) {
        barra.installEventFilter(this);
    }
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        const int lleno = m_fondo.contentsRect().width();
        const int ancho = m_barra.width();
        if (evento->type() == QEvent::Paint && ancho > 0 && ancho < lleno) {
            ++pintados;
            if (2 * ancho >= lleno && m_aLaMitad) {
                std::exchange(m_aLaMitad, nullptr)();
            }
        }
        return QObject::eventFilter(objeto, evento);
    }

    int pintados = 0;

  private:
    QWidget& m_fondo;
    QWidget& m_barra;
    std::function<void()> m_aLaMitad;
};

/// Makes every change of tool tip of a control fail.
class SinToolTips : public QObject {
  public:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() == QEvent::ToolTipChange) {
            throw ErrorZT(NumError::LlamadaNoValida);
        }
        return QObject::eventFilter(objeto, evento);
    }
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
    Importar(LineasQueFallan());
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
        EXPECT_EQ(dialogo.findChild<QLineEdit*>(u"fileNameEdit"_s)->text(), u"Declaran.txt"_s);
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

TEST_F(frmZTImpDeclarantesTest, TheBarIsPaintedLineByLineAndInputInMidRunIsDropped) {
    constexpr int kCuantas = 50;
    EscribirFichero(fichero, Lineas(kCuantas));
    AbrirImportar();
    TestigoDeLaBarra testigo(Control(u"shpFondo"_s), Control(u"shpBarra"_s),
                             [this] { MolestarDuranteElTrabajo(); });
    formulario->findChild<QAbstractButton*>(u"cmdAceptar"_s)->click();
    EXPECT_GE(testigo.pintados, kCuantas / 2);
    EXPECT_TRUE(molestado);
    EXPECT_TRUE(Abierto());
    EXPECT_EQ(terminado, -1);
    EXPECT_EQ(Cuentas(), QStringList({u"50"_s, u"0"_s, u"0"_s, u"0"_s, u"50"_s}));
}

TEST_F(frmZTImpDeclarantesTest, PressesWithoutInputInMidRunDoNothing) {
    EscribirFichero(fichero, Lineas(50));
    AbrirImportar();
    PulsarSinEntradaDuranteElTrabajo();
    formulario->findChild<QAbstractButton*>(u"cmdAceptar"_s)->click();
    EXPECT_TRUE(molestado);
    ASSERT_TRUE(Abierto());
    ASSERT_TRUE(EsperarBotonesSueltos());
    ASSERT_TRUE(Abierto());
    EXPECT_EQ(Cuentas(), QStringList({u"50"_s, u"0"_s, u"0"_s, u"0"_s, u"50"_s}));
    EXPECT_TRUE(Importado());
}

TEST_F(frmZTImpDeclarantesTest, AButtonThatIsNotOnTheScreenDoesNothing) {
    Importar(Lineas(1));
    for (const QString& boton : {u"cmdAceptar"_s, u"picAceptar"_s, u"cmdCancelar"_s, u"picCancelar"_s}) {
        Control<QAbstractButton>(boton).click();
    }
    EXPECT_TRUE(Abierto());
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_EQ(Cuentas().constFirst(), u"1"_s);
}

TEST_F(frmZTImpDeclarantesTest, AFailedImportHidesItsBarAlsoFromTheNextOne) {
    Importar(LineasQueFallan());
    EXPECT_FALSE(SeVe(u"shpFondo"_s));
    EscribirFichero(fichero, QByteArray());
    Pulsar(u"cmdAceptar"_s);
    EXPECT_TRUE(Importado());
    EXPECT_FALSE(SeVe(u"shpFondo"_s));
}

TEST_F(frmZTImpDeclarantesTest, AFileDialogThatFailsIsShownUnderItsFixedName) {
    AbrirImportar();
    SinToolTips filtro;
    Control(u"lblFichero"_s).installEventFilter(&filtro);
    ResponderConFichero(EnCarpeta(u"otro.txt"_s));
    EscribirFichero(EnCarpeta(u"otro.txt"_s), Lineas(1));
    Pulsar(u"cmdModificar"_s);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmNotImportar.cmdModificar_Click"_s);
}

TEST_F(frmZTImpDeclarantesTest, AToolTipThatFailsIsShownUnderItsFixedName) {
    Importar("\r\n");
    SinToolTips filtro;
    const QWidget& etiqueta = Control(u"lblFicheroErroresFich"_s);
    Control(u"lblFicheroErroresFich"_s).installEventFilter(&filtro);
    QTest::mouseMove(marco->windowHandle(), etiqueta.mapTo(marco, etiqueta.rect().center()));
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmNotImportar.lblFicheroErroresFich_MouseMove"_s);
}

TEST_F(frmZTImpDeclarantesTest, TheWholePathIsTheToolTipOfTheFile) {
    AbrirImportar();
    EXPECT_EQ(Control(u"lblFichero"_s).toolTip(), fichero);
    EscribirFichero(EnCarpeta(u"otro.txt"_s), Lineas(1));
    ResponderConFichero(EnCarpeta(u"otro.txt"_s));
    Pulsar(u"cmdModificar"_s);
    EXPECT_EQ(Control(u"lblFichero"_s).toolTip(), EnCarpeta(u"otro.txt"_s));
}

TEST_F(frmZTImpDeclarantesTest, ScreenReadersAreToldWhatHasNoCaption) {
    for (const auto& [idioma, progreso] :
         {std::pair{qint16{0}, u"Progreso"_s}, {qint16{1000}, u"Aurrerapena"_s}}) {
        Entorno().OffsetIdioma = idioma;
        AbrirImportar();
        EXPECT_EQ(Control(u"fraFichero"_s).accessibleName(), TextoDeFila(86 + idioma));
        EXPECT_EQ(Control(u"shpFondo"_s).accessibleName(), progreso);
        Formularios::Descargar(frmZTImpDeclarantes::kNombre.toString());
    }
}

TEST_F(frmZTImpDeclarantesTest, TheBarTakesMoreLinesThanWereCounted) {
    AbrirImportar();
    auto& barra = Control<BarraDeProgreso>(u"shpFondo"_s);
    barra.Empezar();
    EXPECT_EQ(barra.accessibleDescription(), u"0%"_s);
    for (const int contadas : {0, 1}) {
        barra.Avanzar(2, contadas);
        EXPECT_DOUBLE_EQ(BarraLlena(), 1.0);
    }
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
        ASSERT_TRUE(EsperarActiva(&pregunta));
        QTest::keyClick(pregunta.windowHandle(), Qt::Key_Escape);
    });
    Tecla(Qt::Key_Return);
    FijarPantalla(&pantalla);
    EXPECT_TRUE(preguntado);
    EXPECT_EQ(Cuentas(), QStringList({u"0"_s, u"0"_s, u"0"_s, u"1"_s, u"1"_s}));
}

TEST_F(frmZTImpDeclarantesTest, AFileInUtf8IsToldWithABoxToReadItAsSuch) {
    EscribirFichero(fichero, Linea(u"12345678Z"_s, u"UNO"_s));
    AbrirImportar();
    EXPECT_FALSE(SeVe(u"lblUtf8"_s));
    EXPECT_FALSE(SeVe(u"chkUtf8"_s));
    Formularios::Descargar(frmZTImpDeclarantes::kNombre);

    EscribirFichero(fichero, QString::fromLatin1(Linea(u"12345678Z"_s, u"MUÑOZ"_s)).toUtf8());
    AbrirImportar();
    EXPECT_TRUE(SeVe(u"lblUtf8"_s));
    EXPECT_FALSE(Control<QCheckBox>(u"chkUtf8"_s).isChecked());
    QTest::mouseClick(&Control<QCheckBox>(u"chkUtf8"_s), Qt::LeftButton, {}, QPoint(8, 8));
    Pulsar(u"cmdAceptar"_s);
    EXPECT_EQ(Cuentas(), QStringList({u"1"_s, u"0"_s, u"0"_s, u"0"_s, u"1"_s}));
    svrZELT::cZTDeclarante servidor;
    servidor.mdbmod = Entorno().mdbmod;
    Registro declarante;
    servidor.CargarDeclarante(servidor.NifRepetido(u"12345678Z"_s), declarante);
    EXPECT_EQ(declarante.at(2).aTexto(), u"MUÑOZ"_s);
}
