#include "forms/help/VentanaAyuda.h"

#include <QDesktopServices>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintDialog>
#include <QPrinter>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>
#include <QTextBrowser>
#include <QToolBar>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include "core/help/TemasDeAyuda.h"
#include "forms/help/EjecutarAyuda.h"
#include "tests/support/AyudaInstalada.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class VentanaAyudaTest : public PruebaDeFormularios {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        InstalarAyuda(carpeta.path());
    }

    void Abrir(const QString& tema) {
        EjecutarAyuda(tema, duena);
        ventana = &VentanaAyuda::Unica(duena);
        ASSERT_TRUE(EsperarActiva(ventana));
    }

    template <class W>
    [[nodiscard]] W& Control(const QString& nombre) const {
        return *ventana->findChild<W*>(nombre);
    }
    [[nodiscard]] QTextBrowser& Texto() const { return Control<QTextBrowser>(u"txtAyuda"_s); }
    [[nodiscard]] QTreeWidget& Contenido() const { return Control<QTreeWidget>(u"tvwContenido"_s); }
    [[nodiscard]] QLineEdit& Busqueda() const { return Control<QLineEdit>(u"txtBuscar"_s); }
    [[nodiscard]] QLineEdit& EnTodos() const { return Control<QLineEdit>(u"txtBuscarEnTodos"_s); }
    [[nodiscard]] QListWidget& Resultados() const { return Control<QListWidget>(u"lstResultados"_s); }
    [[nodiscard]] QString Titulo() const { return Texto().documentTitle(); }
    [[nodiscard]] QString Elegido() const { return Texto().textCursor().selectedText(); }

    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers con = {}) const {
        QTest::keyClick(ventana->windowHandle(), tecla, con);
    }
    /// Writes a topic of the test's own into the set and shows it.
    void AbrirPropio(const QByteArray& cuerpo) {
        EscribirFichero(CarpetaDeAyuda() + u"/propio.htm"_s,
                        "<html><head><title>Propio</title></head><body>" + cuerpo + "</body></html>");
        Abrir(u"propio.htm"_s);
    }

    QWidget duena;
    VentanaAyuda* ventana = nullptr;
};

/// Catches addresses that would go to the desktop.
class Escritorio : public QObject {
    Q_OBJECT
  public:
    Escritorio() { QDesktopServices::setUrlHandler(u"https"_s, this, "Abrir"); }
    ~Escritorio() override { QDesktopServices::unsetUrlHandler(u"https"_s); }
    int abiertas = 0;

  public Q_SLOTS:
    void Abrir(const QUrl& /*direccion*/) { ++abiertas; }
};

}  // namespace

TEST_F(VentanaAyudaTest, TheContentsStandAsTheirFileHasThem) {
    Abrir(u"cap.htm"_s);
    const TemasDeAyuda temas(CarpetaDeAyuda());
    QTreeWidgetItemIterator i(&Contenido());
    for (const TemaDeAyuda& tema : temas.Temas()) {
        ASSERT_NE(*i, nullptr);
        EXPECT_EQ((*i)->text(0), tema.titulo);
        int nivel = 0;
        for (const QTreeWidgetItem* padre = (*i)->parent(); padre != nullptr; padre = padre->parent()) {
            ++nivel;
            EXPECT_TRUE(padre->isExpanded());
        }
        EXPECT_EQ(nivel, tema.nivel);
        ++i;
    }
    EXPECT_EQ(*i, nullptr);
}

TEST_F(VentanaAyudaTest, ATopicOpensByMouseAndByKeyAndTheContentsFollow) {
    Abrir(u"cap.htm"_s);
    EXPECT_EQ(Contenido().currentItem()->text(0), u"Primeros pasos"_s);
    QTreeWidgetItem* segundo = Contenido().topLevelItem(1);
    QTest::mouseClick(Contenido().viewport(), Qt::LeftButton, {},
                      Contenido().visualItemRect(segundo).center());
    EXPECT_EQ(Titulo(), segundo->text(0));
    EXPECT_EQ(ventana->windowTitle(), segundo->text(0) + u" - Ayuda"_s);
    Contenido().setFocus();
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Titulo(), Contenido().topLevelItem(2)->text(0));
    Tecla(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Contenido().currentItem(), segundo);
}

TEST_F(VentanaAyudaTest, BackForwardAndFirstTopicWorkByKey) {
    Abrir(u"declarante.htm"_s);
    auto& atras = Control<QAction>(u"mnuAtras"_s);
    auto& adelante = Control<QAction>(u"mnuAdelante"_s);
    EXPECT_FALSE(atras.isEnabled());
    EXPECT_FALSE(adelante.isEnabled());
    Tecla(Qt::Key_Home, Qt::AltModifier);
    EXPECT_EQ(Titulo(), u"Primeros pasos"_s);
    Tecla(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Titulo(), u"Los datos del declarante"_s);
    EXPECT_FALSE(atras.isEnabled());
    Tecla(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Titulo(), u"Primeros pasos"_s);
    EXPECT_FALSE(adelante.isEnabled());
}

TEST_F(VentanaAyudaTest, LinksAreReachedByTabAndOpenedByEnter) {
    AbrirPropio("<p><a href=\"cim.htm\">uno</a> <a href=\"cuotas.htm\">dos</a></p>");
    Tecla(Qt::Key_Tab);
    Tecla(Qt::Key_Tab);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Titulo(), u"Cómo se calculan las cuotas"_s);
}

TEST_F(VentanaAyudaTest, LinksOutOfTheSetAreNeitherOpenedNorHandedToTheDesktop) {
    Escritorio escritorio;
    EscribirFichero(carpeta.filePath(u"fuera.htm"_s), "<html><body>fuera</body></html>");
    for (const QByteArray enlace :
         {"https://ondarzia.example/", "../../fuera.htm", "mailto:a@ondarzia.example", "file:///etc/hostname",
          "//ondarzia.example/a"}) {
        SCOPED_TRACE(enlace.toStdString());
        AbrirPropio("<p><a href=\"" + enlace + "\">fuera</a></p>");
        Tecla(Qt::Key_Tab);
        Tecla(Qt::Key_Return);
        EXPECT_EQ(Titulo(), u"Propio"_s);
        EXPECT_FALSE(Control<QAction>(u"mnuAtras"_s).isEnabled());
    }
    EXPECT_EQ(escritorio.abiertas, 0);
}

TEST_F(VentanaAyudaTest, NothingOutsideTheSetIsLoaded) {
    const QString dentro = CarpetaDeAyuda() + u"/imagenes/frmZTDeclarante.png"_s;
    const QString fuera = carpeta.filePath(u"fuera.png"_s);
    ASSERT_TRUE(QFile::copy(dentro, fuera));
    AbrirPropio("<p>texto</p>");
    const auto cargada = [this](const QUrl& imagen) {
        return Texto().loadResource(QTextDocument::ImageResource, imagen).isValid();
    };
    EXPECT_TRUE(cargada(QUrl(u"imagenes/frmZTDeclarante.png"_s)));
    EXPECT_FALSE(cargada(QUrl(u"../../fuera.png"_s)));
    EXPECT_FALSE(cargada(QUrl::fromLocalFile(fuera)));
    EXPECT_FALSE(cargada(QUrl(u"https://ondarzia.example/a.png"_s)));
    EXPECT_FALSE(cargada(QUrl(u"qrc:/imagenes/zelt.svg"_s)));
    EXPECT_FALSE(cargada(QUrl(u"imagenes/no.png"_s)));
}

TEST_F(VentanaAyudaTest, WidePicturesAreMadeToFitAndSmallOnesAreLeft) {
    Abrir(u"cap.htm"_s);
    const auto ancho = [this](const QString& imagen) {
        const QVariant leida =
            Texto().loadResource(QTextDocument::ImageResource, QUrl(u"imagenes/"_s + imagen));
        return leida.value<QPixmap>().deviceIndependentSize().width();
    };
    EXPECT_EQ(ancho(u"frmZTDetDeclaracion.png"_s), 600);
    const QPixmap pequena(CarpetaDeAyuda() + u"/imagenes/frmZTMsgBox.png"_s);
    ASSERT_LT(pequena.width(), 600);
    EXPECT_EQ(ancho(u"frmZTMsgBox.png"_s), pequena.width());
}

TEST_F(VentanaAyudaTest, TheSearchInTheTopicGoesRoundInBothDirections) {
    AbrirPropio("<p>Año uno, ANO dos</p><p>y ano tres.</p>");
    Tecla(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(Busqueda().hasFocus());
    QTest::keyClicks(&Busqueda(), u"ano"_s);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Elegido(), u"Año"_s);
    Tecla(Qt::Key_F3);
    EXPECT_EQ(Elegido(), u"ANO"_s);
    Tecla(Qt::Key_F3);
    EXPECT_EQ(Elegido(), u"ano"_s);
    Tecla(Qt::Key_F3);
    EXPECT_EQ(Elegido(), u"Año"_s);
    Tecla(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Elegido(), u"ano"_s);
    Tecla(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(Elegido(), u"ANO"_s);
    EXPECT_EQ(ventana->statusBar()->currentMessage(), QString());
}

TEST_F(VentanaAyudaTest, TextThatIsNotInTheTopicIsTold) {
    Abrir(u"cap.htm"_s);
    Busqueda().setText(u"xyzzy"_s);
    Tecla(Qt::Key_F3);
    EXPECT_EQ(Elegido(), QString());
    EXPECT_EQ(ventana->statusBar()->currentMessage(), u"El texto no está en este tema."_s);
    Busqueda().clear();
    Tecla(Qt::Key_F3);
    EXPECT_EQ(ventana->statusBar()->currentMessage(), QString());
}

TEST_F(VentanaAyudaTest, TheSearchInAllTopicsListsThemAndOpensThePlace) {
    Abrir(u"cap.htm"_s);
    Tecla(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(EnTodos().hasFocus());
    QTest::keyClicks(&EnTodos(), u"LETRA de control"_s);
    ASSERT_GT(Resultados().count(), 1);
    EXPECT_EQ(Control<QLabel>(u"lblCuenta"_s).text(),
              u"Temas hallados: "_s + QString::number(Resultados().count()));
    Tecla(Qt::Key_Return);
    EXPECT_TRUE(Resultados().hasFocus());
    while (!Resultados().currentItem()->text().startsWith(u"El CIM (")) {
        ASSERT_LT(Resultados().currentRow() + 1, Resultados().count());
        Tecla(Qt::Key_Down);
    }
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Titulo(), u"El CIM"_s);
    EXPECT_EQ(Elegido(), u"letra de control"_s);
    const int primera = Texto().textCursor().position();
    Tecla(Qt::Key_F3);
    EXPECT_GT(Texto().textCursor().position(), primera);
}

TEST_F(VentanaAyudaTest, AResultOpensByMouseToo) {
    Abrir(u"cap.htm"_s);
    Tecla(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    QTest::keyClicks(&EnTodos(), u"editor de texto"_s);
    ASSERT_EQ(Resultados().count(), 1);
    QTest::mouseClick(Resultados().viewport(), Qt::LeftButton, {},
                      Resultados().visualItemRect(Resultados().item(0)).center());
    EXPECT_EQ(Titulo(), u"Importar declarantes"_s);
    EXPECT_EQ(Elegido(), u"editor de texto"_s);
}

TEST_F(VentanaAyudaTest, LettersGrowAndShrinkWithinLimitsAndGoBack) {
    Abrir(u"cap.htm"_s);
    const qreal tamano = Texto().font().pointSizeF();
    Tecla(Qt::Key_Plus, Qt::ControlModifier);
    EXPECT_EQ(Texto().font().pointSizeF(), tamano + 1);
    Tecla(Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(Texto().font().pointSizeF(), tamano);
    for (int i = 0; i < 50; ++i) {
        Tecla(Qt::Key_Minus, Qt::ControlModifier);
    }
    EXPECT_EQ(Texto().font().pointSizeF(), 6);
    for (int i = 0; i < 50; ++i) {
        Tecla(Qt::Key_Plus, Qt::ControlModifier);
    }
    EXPECT_EQ(Texto().font().pointSizeF(), 30);
    Tecla(Qt::Key_0, Qt::ControlModifier);
}

TEST_F(VentanaAyudaTest, TheTopicIsPrintedOnThePrinterThatTheDialogGives) {
    Abrir(u"cuotas.htm"_s);
    const QString pdf = carpeta.filePath(u"tema.pdf"_s);
    QString trabajo;
    bool visto = false;
    QTimer reloj;
    QObject::connect(&reloj, &QTimer::timeout, &reloj, [&] {
        if (auto* dialogo = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget())) {
            reloj.stop();
            visto = true;
            trabajo = dialogo->printer()->docName();
            dialogo->printer()->setOutputFormat(QPrinter::PdfFormat);
            dialogo->printer()->setOutputFileName(pdf);
            dialogo->done(QDialog::Accepted);
        }
    });
    reloj.start(5);
    Tecla(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return visto && QFile::exists(pdf); }));
    EXPECT_EQ(trabajo, u"Cómo se calculan las cuotas"_s);
    EXPECT_TRUE(LeerFichero(pdf).startsWith("%PDF"));
}

TEST_F(VentanaAyudaTest, CancellingThePrinterDialogPrintsNothing) {
    Abrir(u"cuotas.htm"_s);
    bool visto = false;
    QTimer reloj;
    QObject::connect(&reloj, &QTimer::timeout, &reloj, [&] {
        if (auto* dialogo = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget())) {
            reloj.stop();
            visto = true;
            EXPECT_EQ(dialogo->windowTitle(), u"Imprimir el tema"_s);
            dialogo->reject();
        }
    });
    reloj.start(5);
    Tecla(Qt::Key_P, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return visto; }));
    EXPECT_EQ(Titulo(), u"Cómo se calculan las cuotas"_s);
}

TEST_F(VentanaAyudaTest, EscapeClosesAndNothingIsRemembered) {
    Abrir(u"cap.htm"_s);
    Busqueda().setText(u"uno"_s);
    EnTodos().setText(u"dos"_s);
    Tecla(Qt::Key_Plus, Qt::ControlModifier);
    Control<QTabWidget>(u"tabAyuda"_s).setCurrentIndex(1);
    Texto().setSource(QUrl::fromLocalFile(CarpetaDeAyuda() + u"/cim.htm"_s));
    const qreal tamano = Texto().font().pointSizeF();
    Tecla(Qt::Key_Escape);
    EXPECT_FALSE(ventana->isVisible());
    Abrir(u"cap.htm"_s);
    EXPECT_EQ(Titulo(), u"Primeros pasos"_s);
    EXPECT_FALSE(Control<QAction>(u"mnuAtras"_s).isEnabled());
    EXPECT_EQ(Busqueda().text(), QString());
    EXPECT_EQ(EnTodos().text(), QString());
    EXPECT_EQ(Control<QTabWidget>(u"tabAyuda"_s).currentIndex(), 0);
    EXPECT_EQ(Texto().font().pointSizeF(), tamano - 1);
}

TEST_F(VentanaAyudaTest, TextsAndAccessibleNamesStandInTheLanguageInForce) {
    Abrir(u"cap.htm"_s);
    const auto textos = [this] {
        QStringList todos{Busqueda().accessibleName(),
                          EnTodos().accessibleName(),
                          Resultados().accessibleName(),
                          Texto().accessibleName(),
                          Contenido().accessibleName(),
                          Control<QTabWidget>(u"tabAyuda"_s).tabText(0),
                          Control<QTabWidget>(u"tabAyuda"_s).tabText(1)};
        for (const QAction* orden : Control<QToolBar>(u"tlbAyuda"_s).actions()) {
            if (!orden->objectName().isEmpty()) {
                todos += orden->text();
                todos += orden->toolTip();
            }
        }
        return todos;
    };
    const QStringList castellano = textos();
    Entorno().OffsetIdioma = 1000;
    Abrir(u"kap.htm"_s);
    const QStringList euskera = textos();
    ASSERT_EQ(castellano.size(), euskera.size());
    for (qsizetype i = 0; i < castellano.size(); ++i) {
        EXPECT_FALSE(castellano.at(i).isEmpty()) << i;
        EXPECT_NE(castellano.at(i), euskera.at(i));
    }
    EXPECT_EQ(ventana->windowTitle(), u"Lehen urratsak - Laguntza"_s);
}

TEST_F(VentanaAyudaTest, EveryTopicIsShownWithAllItsPictures) {
    for (const qint16 offset : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = offset;
        const TemasDeAyuda temas(CarpetaDeAyuda());
        for (const TemaDeAyuda& tema : temas.Temas()) {
            Abrir(tema.fichero);
            EXPECT_EQ(Titulo(), tema.titulo);
            EXPECT_EQ(Contenido().currentItem()->text(0), tema.titulo);
            EXPECT_TRUE(Texto().toPlainText().startsWith(tema.titulo));
            // What is wider than the window would have to be pushed to and fro.
            EXPECT_EQ(Texto().horizontalScrollBar()->maximum(), 0) << tema.fichero.toStdString();
        }
    }
}

#include "VentanaAyudaTest.moc"
