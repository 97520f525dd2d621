#include "printing/DestinoDeImpresion.h"

#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include "shell/TextosDeQt.h"
#include "tests/printing/PruebaDePdf.h"

using namespace Qt::StringLiterals;

namespace {

class DestinoDeImpresionTest : public PruebaDePdf {
  protected:
    /// Opens the printer dialog and works it.
    template <class F>
    void Elegir(F accion) {
        bool hecho = false;
        QTimer reloj;
        QObject::connect(&reloj, &QTimer::timeout, [&] {
            auto* dialogo = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
            if (dialogo != nullptr && QTest::qWaitForWindowActive(dialogo)) {
                reloj.stop();
                accion(*dialogo);
                hecho = true;
            }
        });
        reloj.start(5);
        oDestinoDeImpresion().Elegir(ventana);
        EXPECT_TRUE(hecho);
    }
    static QLineEdit& Fichero(const QPrintDialog& dialogo) {
        return *dialogo.findChild<QLineEdit*>(u"filename"_s);
    }
    void Imprimir() {
        dispositivo.EmpezarLote();
        dispositivo.NombrarDocumento(u"uno"_s);
        dispositivo.Linea(10, 10, 20, 10);
        dispositivo.TerminarDocumento();
        dispositivo.TerminarLote();
    }

    QWidget ventana;
};

}  // namespace

TEST_F(DestinoDeImpresionTest, ThePrinterIsAskedForOnFirstUseOnlyAndServesTheBatch) {
    const QPrinter* primera = &oDestinoDeImpresion().Impresora();
    EXPECT_EQ(&oDestinoDeImpresion().Impresora(), primera);
}

TEST_F(DestinoDeImpresionTest, ThePrinterDialogOffersTheDocumentsFolder) {
    Elegir([this](QPrintDialog& dialogo) {
        EXPECT_EQ(Fichero(dialogo).text(), Ruta(u"569.pdf"_s));
        QTest::keyClick(dialogo.windowHandle(), Qt::Key_Escape);
    });
}

TEST_F(DestinoDeImpresionTest, AFileChosenThereGivesTheFolderOfAllThatFollows) {
    const QString elegida = carpeta.filePath(u"elegida"_s);
    QDir().mkpath(elegida);
    Elegir([&](QPrintDialog& dialogo) {
        Fichero(dialogo).setText(elegida + u"/lo que sea.pdf"_s);
        QTest::keyClick(dialogo.windowHandle(), Qt::Key_Return);
    });
    Imprimir();
    Imprimir();
    EXPECT_EQ(QDir(elegida).entryList(QDir::Files, QDir::Name),
              (QStringList{u"uno (2).pdf"_s, u"uno.pdf"_s}));
    EXPECT_TRUE(Ficheros().isEmpty());
    EXPECT_TRUE(pantalla.mensajes.back().texto.contains(elegida));
}

TEST_F(DestinoDeImpresionTest, ThePaperChosenThereHolds) {
    Elegir([&](QPrintDialog& dialogo) {
        dialogo.printer()->setPageOrientation(QPageLayout::Landscape);
        QTest::keyClick(dialogo.windowHandle(), Qt::Key_Return);
    });
    dispositivo.EmpezarLote();
    EXPECT_EQ(oDestinoDeImpresion().Impresora().pageLayout().orientation(), QPageLayout::Landscape);
}

TEST_F(DestinoDeImpresionTest, CancellingItChangesNothing) {
    Elegir([&](QPrintDialog& dialogo) {
        Fichero(dialogo).setText(carpeta.filePath(u"otra/a.pdf"_s));
        dialogo.printer()->setOutputFileName(carpeta.filePath(u"otra/a.pdf"_s));
        QTest::keyClick(dialogo.windowHandle(), Qt::Key_Escape);
    });
    Imprimir();
    EXPECT_EQ(Ficheros(), QStringList{u"uno.pdf"_s});
}

TEST_F(DestinoDeImpresionTest, ARangeOfPagesIsNotOffered) {
    Elegir([](QPrintDialog& dialogo) {
        EXPECT_FALSE(dialogo.findChild<QWidget*>(u"gbPrintRange"_s)->isEnabled());
        QTest::keyClick(dialogo.windowHandle(), Qt::Key_Escape);
    });
}

TEST_F(DestinoDeImpresionTest, TheDialogSpeaksTheLanguageOfTheScreen) {
    TextosDeQt textos;
    QCoreApplication::installTranslator(&textos);
    for (const auto& [idioma, titulo, avanzado] : {std::tuple{u"C"_s, u"Copias:"_s, u"Avanzado"_s},
                                                   std::tuple{u"E"_s, u"Kopiak:"_s, u"Aurreratua"_s}}) {
        oFecha().IDI(idioma);
        EXPECT_EQ(QCoreApplication::translate("QPrintPropertiesWidget", "Advanced"), avanzado);
        Elegir([titulo = titulo](QPrintDialog& dialogo) {
            const auto etiquetas = dialogo.findChildren<QLabel*>();
            EXPECT_TRUE(std::ranges::any_of(etiquetas, [&](const QLabel* e) { return e->text() == titulo; }));
            QTest::keyClick(dialogo.windowHandle(), Qt::Key_Escape);
        });
    }
}
