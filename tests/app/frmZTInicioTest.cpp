#include "app/frmZTInicio.h"

#include <QLabel>
#include <QScreen>

#include "core/online/cZTActOnline.h"
#include "forms/messages/PantallaQt.h"
#include "tests/support/DialogoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kPaso = 1000;

/// Notes whether a widget has been painted.
class TestigoDePintado : public QObject {
  public:
    bool pintado = false;
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        pintado = pintado || (evento->type() == QEvent::Paint && objeto->objectName() == u"lblTitulo");
        return false;
    }
};

class frmZTInicioTest : public DialogoDePrueba {
  protected:
    void SetUp() override {
        DialogoDePrueba::SetUp();
        FijarPantalla(&real);
        Entorno().VersionPrograma = u"1.2.4"_s;
        oActOnline().ActOnline = 0;
        // Each look at the clock finds it a second later.
        Entorno().Milisegundos = [this] {
            ++miradas;
            return ahora += kPaso;
        };
    }

    /// Loads the splash, which returns when its time is over, and gives its window.
    static QWidget& Cargar() { return Formularios::Obtener(u"frmZTInicio"_s).Ventana(); }

    static QString Etiqueta(const QWidget& v, const char* nombre) {
        return Control<QLabel>(v, nombre).text();
    }

    PantallaQt real;
    qint64 ahora = 0;
    int miradas = 0;
};

}  // namespace

TEST_F(frmZTInicioTest, ItSpeaksBothLanguages) {
    for (const qint16 offset : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = offset;
        const QWidget& v = Cargar();
        EXPECT_EQ(v.windowTitle(), u"Acerca de ZELT"_s);
        EXPECT_EQ(Etiqueta(v, "lblVersion"), u"Bertsioa/Versión1.2.4"_s);
        EXPECT_EQ(Etiqueta(v, "lblTitulo"), u"569 EREDUA / MODELO 569"_s);
        EXPECT_EQ(Etiqueta(v, "lblTitulo1"),
                  u"Zenbait Hidrokarburoren Txikizkako Salmenten gaineko Zerga / Impuesto sobre Ventas "
                  "Minoristas de Determinados Hidrocarburos"_s);
        EXPECT_EQ(
            Etiqueta(v, "lblDescrEus"),
            u"569 Ereduak laguntza programaren bidez, ondasunen batasun barruko emateei edo eskurapenei "
            "dagozkien aitorpenak egin daitezke ordenadore pertsonal batetik."_s);
        EXPECT_EQ(Etiqueta(v, "lblDescrCas"),
                  u"El programa de ayuda del modelo 569 permite confeccionar las declaraciones desde un "
                  "ordenador personal."_s);
        EXPECT_EQ(Etiqueta(v, "lblcopy"), u"© 2026 Diputación Foral de Ondarzia"_s);
        EXPECT_EQ(Etiqueta(v, "lblAct"),
                  offset == 0 ? u"Buscando actualización..."_s : u"Eguneratzea bilatzen"_s);
        EXPECT_FALSE(Control<QLabel>(v, "imgInicio").pixmap().isNull());
        Formularios::Descargar(u"frmZTInicio"_s);
    }
}

TEST_F(frmZTInicioTest, ItIsAFramelessWindowInTheMiddleOfTheScreen) {
    const QWidget& v = Cargar();
    EXPECT_TRUE(v.isVisible());
    EXPECT_TRUE(v.isWindow());
    EXPECT_TRUE(v.windowFlags().testFlag(Qt::FramelessWindowHint));
    const QPoint centro = v.screen()->availableGeometry().center();
    EXPECT_NEAR(v.geometry().center().x(), centro.x(), 1);
    EXPECT_NEAR(v.geometry().center().y(), centro.y(), 1);
}

TEST_F(frmZTInicioTest, ItsLoadKeepsControlForFourSecondsAndNotLonger) {
    Cargar();
    EXPECT_EQ(miradas, 1 + 4) << "once for the moment, then at each second";
}

TEST_F(frmZTInicioTest, TheTimeCountsFromTheMomentItIsVisibleAndPainted) {
    TestigoDePintado testigo;
    qApp->installEventFilter(&testigo);
    bool primera = true;
    Entorno().Milisegundos = [&] {
        if (primera) {
            EXPECT_TRUE(Formularios::Visible(u"frmZTInicio"_s));
            EXPECT_TRUE(testigo.pintado);
            primera = false;
        }
        return ahora += kPaso;
    };
    Cargar();
    EXPECT_FALSE(primera);
}

TEST_F(frmZTInicioTest, EventsRunWhileItWaits) {
    bool corrio = false;
    QTimer::singleShot(0, qApp, [&] { corrio = true; });
    FijarPantalla(&pantalla);
    Cargar();
    EXPECT_TRUE(corrio);
}

TEST_F(frmZTInicioTest, ACheckOfTenSecondsMakesTenSecondsAndNotFourteen) {
    oActOnline().ActOnline = 1;
    Entorno().ComprobarActualizacion = [this] { ahora += 10 * kPaso; };
    Cargar();
    EXPECT_EQ(miradas, 1 + 1) << "once for the moment, once to find it passed";
}

TEST_F(frmZTInicioTest, AShortCheckIsPartOfTheFourSeconds) {
    oActOnline().ActOnline = 1;
    Entorno().ComprobarActualizacion = [this] { ahora += 2 * kPaso; };
    Cargar();
    EXPECT_EQ(miradas, 1 + 2);
}

TEST_F(frmZTInicioTest, TheLabelOfTheCheckIsSeenOnlyWhileItRuns) {
    oActOnline().ActOnline = 1;
    int pasadas = 0;
    Entorno().ComprobarActualizacion = [&] {
        ++pasadas;
        EXPECT_EQ(miradas, 1) << "the moment is noted before the check";
        EXPECT_TRUE(Control(Formularios::Obtener(u"frmZTInicio"_s).Ventana(), "lblAct").isVisible());
    };
    const QWidget& v = Cargar();
    EXPECT_EQ(pasadas, 1);
    EXPECT_FALSE(Control(v, "lblAct").isVisible());
}

TEST_F(frmZTInicioTest, TheCheckRunsOnlyWhenItIsSwitchedOn) {
    for (const qint16 ajuste : {qint16{-1}, qint16{0}, qint16{2}}) {
        oActOnline().ActOnline = ajuste;
        bool labelVista = false;
        Entorno().ComprobarActualizacion = [&] { ADD_FAILURE() << ajuste; };
        Entorno().Milisegundos = [&] {
            labelVista =
                labelVista || Control(Formularios::Obtener(u"frmZTInicio"_s).Ventana(), "lblAct").isVisible();
            return ahora += kPaso;
        };
        Cargar();
        EXPECT_FALSE(labelVista) << ajuste;
        Formularios::Descargar(u"frmZTInicio"_s);
    }
}

TEST_F(frmZTInicioTest, AProgramBuiltWithoutACheckJustWaits) {
    oActOnline().ActOnline = 1;
    Cargar();
    EXPECT_EQ(miradas, 1 + 4);
}

TEST_F(frmZTInicioTest, AnUnknownVersionLeavesTheNumberOut) {
    Entorno().VersionPrograma.clear();
    EXPECT_EQ(Etiqueta(Cargar(), "lblVersion"), u"Bertsioa/Versión"_s);
}
