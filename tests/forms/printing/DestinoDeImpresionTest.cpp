#include "forms/printing/DestinoDeImpresion.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QTest>
#include <QWindow>

#include "app/TextosDeQt.h"
#include "tests/support/AlDialogo.h"
#include "tests/support/LectorDePdf.h"
#include "tests/support/PruebaDePdf.h"

using namespace Qt::StringLiterals;

namespace {

class DestinoDeImpresionTest : public PruebaDePdf {
  protected:
    /// Opens the printer dialog and works it.
    template <class F>
    void Elegir(F accion) {
        const AlDialogo<QPrintDialog> espera(accion);
        oDestinoDeImpresion().Elegir(ventana);
    }
    /// Chooses the paper on the page of properties of the dialog.
    static void ElegirPapel(const QPrintDialog& dialogo, const QString& papel) {
        const AlDialogo<QDialog> espera([&papel](QDialog& propiedades) {
            auto* papeles = propiedades.findChild<QComboBox*>(u"pageSizeCombo"_s);
            papeles->setCurrentIndex(papeles->findText(papel, Qt::MatchStartsWith));
            QTest::keyClick(propiedades.windowHandle(), Qt::Key_Return);
        });
        dialogo.findChild<QAbstractButton*>(u"properties"_s)->click();
    }
    static QLineEdit& Fichero(const QPrintDialog& dialogo) {
        return *dialogo.findChild<QLineEdit*>(u"filename"_s);
    }
    void Anadir() {
        dispositivo.NombrarDocumento(u"uno"_s);
        dispositivo.Linea(10, 10, 20, 10);
        dispositivo.TerminarDocumento();
    }
    void Imprimir() {
        dispositivo.EmpezarLote();
        Anadir();
        dispositivo.TerminarLote();
    }

    QWidget ventana;
};

}  // namespace

TEST_F(DestinoDeImpresionTest, OnePrinterServesAllDocumentsOfABatch) {
    dispositivo.EmpezarLote();
    oDestinoDeImpresion().Impresora().setPageOrientation(QPageLayout::Landscape);
    Anadir();
    Anadir();
    dispositivo.TerminarLote();
    EXPECT_EQ(DatoDePdf(Ruta(u"uno.pdf"_s), u"Page size"_s), u"842 x 595 pts (A4)"_s);
    EXPECT_EQ(DatoDePdf(Ruta(u"uno (2).pdf"_s), u"Page size"_s), u"842 x 595 pts (A4)"_s);
}

TEST_F(DestinoDeImpresionTest, TheFolderThatIsOfferedIsThereAndGoesAgainWhenTheDialogIsCancelled) {
    ASSERT_FALSE(QDir(Documentos()).exists());
    for (const Qt::Key tecla : {Qt::Key_Escape, Qt::Key_Return}) {
        Elegir([&](QPrintDialog& dialogo) {
            EXPECT_TRUE(QDir(Documentos()).exists());
            QTest::keyClick(dialogo.windowHandle(), tecla);
        });
        EXPECT_EQ(QDir(Documentos()).exists(), tecla == Qt::Key_Return);
    }
}

TEST_F(DestinoDeImpresionTest, AFolderThatWasThereStays) {
    QDir().mkpath(Documentos());
    Elegir([](QPrintDialog& dialogo) { QTest::keyClick(dialogo.windowHandle(), Qt::Key_Escape); });
    EXPECT_TRUE(QDir(Documentos()).exists());
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

TEST_F(DestinoDeImpresionTest, WhatIsChosenThereHoldsForTheBatchesThatFollow) {
    Elegir([](QPrintDialog& dialogo) {
        ElegirPapel(dialogo, u"A5"_s);
        QTest::keyClick(dialogo.windowHandle(), Qt::Key_Return);
    });
    Imprimir();
    Imprimir();
    EXPECT_TRUE(DatoDePdf(Ruta(u"uno.pdf"_s), u"Page size"_s).startsWith(u"420 x 595 pts"));
    EXPECT_TRUE(DatoDePdf(Ruta(u"uno (2).pdf"_s), u"Page size"_s).startsWith(u"420 x 595 pts"));
}

TEST_F(DestinoDeImpresionTest, WithoutAChoiceEachBatchAsksTheSystemAnew) {
    oDestinoDeImpresion().Impresora().setPageOrientation(QPageLayout::Landscape);
    Imprimir();
    EXPECT_EQ(DatoDePdf(Ruta(u"uno.pdf"_s), u"Page size"_s), u"595 x 842 pts (A4)"_s);
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
