#include "shell/EjecutarAyuda.h"

#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTextBrowser>

#include "shell/VentanaAyuda.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class EjecutarAyudaTest : public PruebaDeFormularios {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        for (const auto& [juego, tema] :
             {std::pair{u"Ayuda"_s, u"cap.htm"_s}, {u"Laguntza"_s, u"kap.htm"_s}}) {
            const QString destino = carpeta.filePath(u"Ayuda/"_s + juego);
            QDir().mkpath(destino);
            const QDir origen(QStringLiteral(ZELT_AYUDA) + u'/' + juego);
            for (const QString& fichero : origen.entryList(QDir::Files)) {
                ASSERT_TRUE(QFile::copy(origen.filePath(fichero), destino + u'/' + fichero));
            }
        }
    }

    VentanaAyuda& Abrir(const QString& tema) {
        EjecutarAyuda(tema, duena);
        return VentanaAyuda::Unica(duena);
    }

    QTextBrowser& Texto(VentanaAyuda& ventana) { return *ventana.findChild<QTextBrowser*>(u"txtAyuda"_s); }

    QWidget duena;
};

}  // namespace

TEST_F(EjecutarAyudaTest, TheHelpSetFollowsTheLanguage) {
    EXPECT_TRUE(RutaDeAyuda(u"cap.htm"_s).toLocalFile().endsWith(u"/Ayuda/Ayuda/cap.htm"));
    Entorno().OffsetIdioma = 1000;
    EXPECT_TRUE(RutaDeAyuda(u"kap.htm"_s).toLocalFile().endsWith(u"/Ayuda/Laguntza/kap.htm"));
}

TEST_F(EjecutarAyudaTest, TheTopicIsShownWithTheContentsOfItsSet) {
    VentanaAyuda& ventana = Abrir(u"cap.htm"_s);
    EXPECT_TRUE(ventana.isVisible());
    EXPECT_EQ(Texto(ventana).documentTitle(), u"Primeros pasos"_s);
    EXPECT_EQ(ventana.findChild<QListWidget*>()->item(0)->text(), u"Primeros pasos"_s);
    Entorno().OffsetIdioma = 1000;
    Abrir(u"kap.htm"_s);
    EXPECT_EQ(Texto(ventana).documentTitle(), u"Lehen urratsak"_s);
    EXPECT_EQ(ventana.findChild<QListWidget*>()->item(0)->text(), u"Lehen urratsak"_s);
}

TEST_F(EjecutarAyudaTest, EveryTopicOfTheContentsExistsInBothLanguages) {
    for (const qint16 offset : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = offset;
        VentanaAyuda& ventana = Abrir(offset == 0 ? u"cap.htm"_s : u"kap.htm"_s);
        auto& contenido = *ventana.findChild<QListWidget*>();
        ASSERT_GT(contenido.count(), 1);
        for (int i = 0; i < contenido.count(); ++i) {
            EXPECT_TRUE(QFile::exists(contenido.item(i)->data(Qt::UserRole).toUrl().toLocalFile()));
        }
    }
}

TEST_F(EjecutarAyudaTest, ATopicOfTheContentsOpensByMouseAndBackReturns) {
    VentanaAyuda& ventana = Abrir(u"cap.htm"_s);
    auto& contenido = *ventana.findChild<QListWidget*>();
    QTest::mouseClick(contenido.viewport(), Qt::LeftButton, {},
                      contenido.visualItemRect(contenido.item(1)).center());
    EXPECT_EQ(Texto(ventana).documentTitle(), u"La ventana principal"_s);
    ventana.findChild<QAction*>(u"mnuAtras"_s)->trigger();
    EXPECT_EQ(Texto(ventana).documentTitle(), u"Primeros pasos"_s);
    ventana.findChild<QAction*>(u"mnuAdelante"_s)->trigger();
    ventana.findChild<QAction*>(u"mnuInicio"_s)->trigger();
    EXPECT_EQ(Texto(ventana).documentTitle(), u"Primeros pasos"_s);
}

TEST_F(EjecutarAyudaTest, SearchSelectsTheWordAndStartsOverAtTheEnd) {
    VentanaAyuda& ventana = Abrir(u"cap.htm"_s);
    auto& busqueda = *ventana.findChild<QLineEdit*>(u"txtBuscar"_s);
    QTest::keyClicks(&busqueda, u"tab"_s);
    QTest::keyClick(&busqueda, Qt::Key_Return);
    EXPECT_EQ(Texto(ventana).textCursor().selectedText().toLower(), u"tab"_s);
    const int primera = Texto(ventana).textCursor().position();
    QTest::keyClick(&busqueda, Qt::Key_Return);
    QTest::keyClick(&busqueda, Qt::Key_Return);
    EXPECT_EQ(Texto(ventana).textCursor().position(), primera);
}

TEST_F(EjecutarAyudaTest, AMissingTopicIsToldWithTheNameOfItsFile) {
    VentanaAyuda& ventana = Abrir(u"noexiste.htm"_s);
    EXPECT_TRUE(Texto(ventana).toPlainText().contains(u"noexiste.htm"));
}
