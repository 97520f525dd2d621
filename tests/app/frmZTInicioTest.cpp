#include "app/frmZTInicio.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QLabel>
#include <QScreen>

#include "core/online/cZTActOnline.h"
#include "core/start/Arranque.h"
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

namespace {

/// Another program holds the store, so that the check behind the splash does not get on.
class frmZTInicioLargoTest : public frmZTInicioTest {
  protected:
    void SetUp() override {
        frmZTInicioTest::SetUp();
        // As good as for ever: what is skipped must not sit it out.
        FijarEsperaDeAlmacen(3'600'000);
        otra = std::make_unique<SQLite::Database>(Entorno().mdbmod.toStdString(), SQLite::OPEN_READWRITE);
        otra->exec("BEGIN EXCLUSIVE");
    }
    void TearDown() override {
        otra.reset();
        FijarEsperaDeAlmacen(5000);
        frmZTInicioTest::TearDown();
    }
    /// Works the splash as soon as it says that it goes on. What it waits for is asked between two events: it
    /// is not to be waited for within one.
    template <class F>
    void CuandoSiga(F accion) {
        auto* reloj = new QTimer(qApp);
        QObject::connect(reloj, &QTimer::timeout, qApp, [=, this] {
            if (!Formularios::Visible(u"frmZTInicio"_s)) {
                return;
            }
            QWidget& v = Formularios::Obtener(u"frmZTInicio"_s).Ventana();
            if (Control(v, "fraRevision").isVisible()) {
                reloj->stop();
                reloj->deleteLater();
                EXPECT_EQ(miradas, 1 + 4) << "the four seconds are over";
                accion(v);
            }
        });
        reloj->start(5);
    }

    std::unique_ptr<SQLite::Database> otra;
};

}  // namespace

TEST_F(frmZTInicioLargoTest, WhereTheCheckTakesLongerTheSplashStaysWithABarUntilItEnds) {
    CuandoSiga([this](QWidget& v) {
        EXPECT_EQ(Etiqueta(v, "lblRevision"), u"Comprobando el fichero de datos..."_s);
        EXPECT_TRUE(Control(v, "barRevision").isVisible());
        EXPECT_EQ(Control(v, "barRevision").accessibleName(), u"Progreso de la comprobación"_s);
        otra.reset();
    });
    const QWidget& v = Cargar();
    EXPECT_TRUE(oRevision().Acabada());
    EXPECT_EQ(oRevision().Hechas(), oRevision().Total());
    EXPECT_FALSE(Control(v, "fraRevision").isVisible());
}

TEST_F(frmZTInicioLargoTest, ItsButtonSkipsTheRestWithTheMouseAndWithTheKeyboard) {
    for (const bool conRaton : {true, false}) {
        Entorno().OffsetIdioma = conRaton ? 0 : 1000;
        miradas = 0;
        CuandoSiga([conRaton](QWidget& v) {
            auto& omitir = Control(v, "cmdOmitir");
            EXPECT_EQ(omitir.property("text").toString(),
                      conRaton ? u"&Omitir la comprobación"_s : u"&Utzi egiaztapena"_s);
            EXPECT_EQ(v.focusWidget(), &omitir);
            conRaton ? QTest::mouseClick(&omitir, Qt::LeftButton) : QTest::keyClick(&omitir, Qt::Key_Space);
        });
        Cargar();
        EXPECT_FALSE(oRevision().Resultado());
        Formularios::Descargar(u"frmZTInicio"_s);
        otra->exec("ROLLBACK");
        otra->exec("BEGIN EXCLUSIVE");
    }
}

TEST_F(frmZTInicioTest, TheStoreIsReadBehindItAndAShortCheckShowsNothing) {
    bool visto = false;
    Entorno().Milisegundos = [&] {
        // The look at the clock waits for the check, as four seconds do.
        if (ahora > 0) {
            (void)QTest::qWaitFor([] { return oRevision().Acabada(); });
        }
        visto = visto || Control(Formularios::Obtener(u"frmZTInicio"_s).Ventana(), "fraRevision").isVisible();
        return ahora += kPaso;
    };
    Cargar();
    EXPECT_FALSE(visto);
    EXPECT_GT(oRevision().Total(), 0);
    EXPECT_FALSE(oRevision().Resultado());
}
