#include "forms/messages/frmZTGestErrores.h"

#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QWindow>

#include "core/run/GeneralZT.h"
#include "forms/messages/PantallaQt.h"
#include "tests/support/DialogoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kArriba = 90 / 15;
constexpr int kAbajo = 4080 / 15;

/// Counts the objects that are made on a widget: a drag is one.
class TestigoDeHijos : public QObject {
  public:
    int hijos = 0;
    bool eventFilter(QObject*, QEvent* evento) override {
        hijos += evento->type() == QEvent::ChildAdded ? 1 : 0;
        return false;
    }
};

class frmZTGestErroresTest : public DialogoDePrueba {
  protected:
    template <class F>
    void Mostrar(F accion) {
        AlAbrirse(frmZTGestErrores::kNombre, accion);
        ElFormulario<frmZTGestErrores>().Mostrar(
            u"frmZTImp"_s, u"frmZTImp.cmdAceptar_Click"_s,
            u"General.InicializarListas\r\nGeneral.CargarResultado\r\nno existe la tabla"_s);
    }

    static QString Caja(const QWidget& v, const char* nombre) { return Control<QLineEdit>(v, nombre).text(); }

    /// Every control of the first part lies whole within the form and is as large as its content needs.
    static void ComprobarPrimeraParte(const QWidget& v) {
        for (const char* nombre : {"txtError_0", "txtError_1", "txtError_2", "cmdAceptar", "cmdMas"}) {
            const QWidget& control = Control(v, nombre);
            const QRect lugar(control.mapTo(&v, QPoint(0, 0)), control.size());
            EXPECT_TRUE(v.rect().contains(lugar)) << nombre;
            EXPECT_GE(control.height(), control.minimumSizeHint().height()) << nombre;
        }
    }

    static bool Soltar(QWidget& v, const QString& formato) {
        QMimeData datos;
        datos.setData(formato, {});
        QWidget& imagen = Control(v, "Image1");
        QDragEnterEvent entrada(QPoint(5, 5), Qt::MoveAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&imagen, &entrada);
        QDropEvent suelta(QPointF(5, 5), Qt::MoveAction, &datos, Qt::LeftButton, Qt::NoModifier);
        suelta.ignore();
        QApplication::sendEvent(&imagen, &suelta);
        return suelta.isAccepted();
    }
};

}  // namespace

TEST_F(frmZTGestErroresTest, ItShowsFormEventLogAndDescription) {
    Mostrar([](QWidget& v) {
        EXPECT_EQ(Caja(v, "txtError_0"), u"frmZTImp"_s);
        EXPECT_EQ(Caja(v, "txtError_1"), u"frmZTImp.cmdAceptar_Click"_s);
        const QString ruta = Caja(v, "txtError_2");
        EXPECT_EQ(ruta, Entorno().CarpetaTemporal + QDir::separator() + u"Error07-07-04 09-08-07.log"_s);
        QFile registro(ruta);
        ASSERT_TRUE(registro.open(QIODevice::ReadOnly));
        EXPECT_TRUE(registro.readAll().contains("frmZTImp.cmdAceptar_Click\r\n"));
        Pulsar(v, "cmdAceptar");
    });
    EXPECT_FALSE(Formularios::Cargado(u"frmZTGestErrores"_s));
}

TEST_F(frmZTGestErroresTest, TheDescriptionReadsAsATraceOutermostFirst) {
    Mostrar([](QWidget& v) {
        EXPECT_EQ(Control<QPlainTextEdit>(v, "txtError_3").toPlainText(),
                  u"General.InicializarListas\nGeneral.CargarResultado\nno existe la tabla"_s);
        Pulsar(v, "cmdAceptar");
    });
}

TEST_F(frmZTGestErroresTest, ALogThatCannotBeWrittenDoesNotStopTheDialog) {
    Entorno().CarpetaTemporal = carpeta.filePath(u"no-existe"_s);
    Mostrar([](QWidget& v) {
        EXPECT_TRUE(Caja(v, "txtError_2").endsWith(u"Error07-07-04 09-08-07.log"));
        Pulsar(v, "cmdAceptar");
    });
}

TEST_F(frmZTGestErroresTest, ItSpeaksCastellanoInBothLanguages) {
    for (const qint16 offset : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = offset;
        Mostrar([](QWidget& v) {
            EXPECT_EQ(v.windowTitle(), u"Error..."_s);
            EXPECT_EQ(Control<QPushButton>(v, "cmdAceptar").text(), u"&Aceptar"_s);
            EXPECT_EQ(Control<QPushButton>(v, "cmdMas").text(), u"Mas"_s);
            EXPECT_EQ(Control<QLabel>(v, "lblFormulario").text(), u"Formulario:"_s);
            EXPECT_EQ(Control<QLabel>(v, "lblEvento").text(), u"Evento:"_s);
            EXPECT_EQ(Control<QLabel>(v, "lblFichero").text(), u"Fichero:"_s);
            EXPECT_EQ(Control<QLabel>(v, "lblDescripcion").text(), u"Descripción del Error"_s);
            Pulsar(v, "cmdAceptar");
        });
    }
}

TEST_F(frmZTGestErroresTest, ItOpensWithItsFirstPartAlone) {
    Mostrar([](QWidget& v) {
        EXPECT_GE(v.height(), 2040 / 15);
        EXPECT_LT(v.height(), 4965 / 15);
        EXPECT_FALSE(Control(v, "fraDetalle").isEnabled());
        EXPECT_FALSE(Control(v, "txtError_3").isVisible());
        EXPECT_TRUE(Control(v, "cmdMas").isEnabled());
        ComprobarPrimeraParte(v);
        Pulsar(v, "cmdAceptar");
    });
}

TEST_F(frmZTGestErroresTest, WithALargerFontTheFirstPartIsStillWhole) {
    const QFont anterior = QApplication::font();
    QFont grande = anterior;
    grande.setPointSize(3 * anterior.pointSize());
    QApplication::setFont(grande);
    Mostrar([](QWidget& v) {
        EXPECT_GT(v.height(), 2040 / 15);
        ComprobarPrimeraParte(v);
        Pulsar(v, "cmdAceptar");
    });
    QApplication::setFont(anterior);
}

TEST_F(frmZTGestErroresTest, MasOpensTheDetailsForGood) {
    Mostrar([](QWidget& v) {
        Pulsar(v, "cmdMas");
        EXPECT_GE(v.height(), 4965 / 15);
        EXPECT_TRUE(Control(v, "fraDetalle").isEnabled());
        EXPECT_FALSE(Control(v, "cmdMas").isEnabled());
        const QWidget& descripcion = Control(v, "txtError_3");
        EXPECT_TRUE(descripcion.isVisible());
        EXPECT_TRUE(v.rect().contains(QRect(descripcion.mapTo(&v, QPoint(0, 0)), descripcion.size())));
        const int alto = v.height();
        Pulsar(v, "cmdMas");
        EXPECT_EQ(v.height(), alto);
        EXPECT_TRUE(Control(v, "fraDetalle").isEnabled());
        ComprobarPrimeraParte(v);
        Pulsar(v, "cmdAceptar");
    });
    Mostrar([](QWidget& v) {
        EXPECT_TRUE(Control(v, "cmdMas").isEnabled()) << "the next one opens closed";
        Pulsar(v, "cmdAceptar");
    });
}

TEST_F(frmZTGestErroresTest, LoadAndUnloadSetTheDefaultPointer) {
    Mostrar([this](QWidget& v) {
        EXPECT_EQ(pantalla.punteros, std::vector{Puntero::Normal});
        Pulsar(v, "cmdAceptar");
    });
    EXPECT_EQ(pantalla.punteros, (std::vector{Puntero::Normal, Puntero::Normal}));
}

TEST_F(frmZTGestErroresTest, EscapeEnterAndTheCloseBoxCloseIt) {
    Mostrar([](QWidget& v) { QTest::keyClick(&v, Qt::Key_Escape); });
    Mostrar([](QWidget& v) {
        ASSERT_EQ(v.focusWidget(), &Control(v, "cmdAceptar"));
        QTest::keyClick(v.focusWidget(), Qt::Key_Return);
    });
    Mostrar([](QWidget& v) { v.close(); });
}

TEST_F(frmZTGestErroresTest, TheFieldsCanBeCopiedAndNotChanged) {
    Mostrar([](QWidget& v) {
        for (const char* nombre : {"txtError_0", "txtError_1", "txtError_2"}) {
            EXPECT_TRUE(Control<QLineEdit>(v, nombre).isReadOnly()) << nombre;
        }
        EXPECT_TRUE(Control<QPlainTextEdit>(v, "txtError_3").isReadOnly());
        Pulsar(v, "cmdAceptar");
    });
}

TEST_F(frmZTGestErroresTest, ADropOnTheImageMovesItBetweenItsTwoPlaces) {
    Mostrar([](QWidget& v) {
        Pulsar(v, "cmdMas");
        const QWidget& imagen = Control(v, "Image1");
        const int izquierda = imagen.x();
        EXPECT_EQ(imagen.y(), kArriba);
        EXPECT_TRUE(Soltar(v, frmZTGestErrores::kArrastre.toString()));
        EXPECT_EQ(imagen.pos(), QPoint(izquierda, kAbajo));
        EXPECT_TRUE(v.rect().contains(imagen.geometry()));
        EXPECT_TRUE(Soltar(v, frmZTGestErrores::kArrastre.toString()));
        EXPECT_EQ(imagen.pos(), QPoint(izquierda, kArriba));
        Pulsar(v, "cmdAceptar");
    });
}

TEST_F(frmZTGestErroresTest, MovingOverTheImageWithTheButtonDownStartsADrag) {
    Mostrar([](QWidget& v) {
        QWidget& imagen = Control(v, "Image1");
        QWindow* ventana = v.windowHandle();
        const QPoint lugar = imagen.geometry().center();
        TestigoDeHijos testigo;
        imagen.installEventFilter(&testigo);
        QTest::mouseMove(ventana, lugar);
        EXPECT_EQ(testigo.hijos, 0) << "without the button there is no drag";
        QTest::mousePress(ventana, Qt::LeftButton, Qt::NoModifier, lugar);
        // Where the platform carries drags out, it has an event loop of its own, in which it ends.
        QTimer::singleShot(0, ventana,
                           [=] { QTest::mouseRelease(ventana, Qt::LeftButton, Qt::NoModifier, lugar); });
        QTest::mouseMove(ventana, lugar + QPoint(2, 2));
        EXPECT_EQ(testigo.hijos, 1);
        Pulsar(v, "cmdAceptar");
    });
}

TEST_F(frmZTGestErroresTest, ADropFromElsewhereDoesNotMoveTheImage) {
    Mostrar([](QWidget& v) {
        EXPECT_FALSE(Soltar(v, u"text/plain"_s));
        EXPECT_EQ(Control(v, "Image1").y(), kArriba);
        Pulsar(v, "cmdAceptar");
    });
}

TEST_F(frmZTGestErroresTest, ShowErrorShowsItWithTheDefaultPointer) {
    PantallaQt real;
    FijarPantalla(&real);
    real.PonerPuntero(Puntero::Espera);
    AlAbrirse(frmZTGestErrores::kNombre, [](QWidget& v) {
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
        EXPECT_EQ(Caja(v, "txtError_1"), u"MDIZT.mnuAbrDec_Click"_s);
        Pulsar(v, "cmdAceptar");
    });
    ShowError(u"MDIZT"_s, u"MDIZT.mnuAbrDec_Click"_s, u"d"_s);
}
