#include "forms/printing/DestinoDeImpresion.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QSpinBox>
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
        ConPropiedades(dialogo, [&papel](const QDialog& propiedades) {
            auto* papeles = propiedades.findChild<QComboBox*>(u"pageSizeCombo"_s);
            papeles->setCurrentIndex(papeles->findText(papel, Qt::MatchStartsWith));
        });
    }
    /// Opens the page of properties, looks at it and accepts it.
    template <class F>
    static void ConPropiedades(const QPrintDialog& dialogo, F accion) {
        const AlDialogo<QDialog> espera([&accion](QDialog& propiedades) {
            accion(propiedades);
            QTest::keyClick(propiedades.windowHandle(), Qt::Key_Return);
        });
        dialogo.findChild<QAbstractButton*>(u"properties"_s)->click();
    }
    static void Aceptar(const QPrintDialog& dialogo) {
        QTest::keyClick(dialogo.windowHandle(), Qt::Key_Return);
    }
    /// Chooses a file in the dialog, whose question about one that is there is answered with yes.
    void ElegirFichero(const QString& ruta) {
        Elegir([&ruta](QPrintDialog& dialogo) {
            Fichero(dialogo).setText(ruta);
            if (!QFile::exists(ruta)) {
                Aceptar(dialogo);
                return;
            }
            const AlDialogo<QMessageBox> espera(
                [](const QMessageBox& caja) { caja.button(QMessageBox::Yes)->click(); });
            Aceptar(dialogo);
        });
    }
    [[nodiscard]] QString HojaDe(const QString& nombre) const {
        return DatoDePdf(Ruta(nombre), u"Page size"_s);
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
    oDestinoDeImpresion().Impresora().setPageSize(QPageSize(QPageSize::A3));
    Anadir();
    Anadir();
    dispositivo.TerminarLote();
    EXPECT_EQ(HojaDe(u"uno.pdf"_s), u"842 x 1191 pts (A3)"_s);
    EXPECT_EQ(HojaDe(u"uno (2).pdf"_s), u"842 x 1191 pts (A3)"_s);
}

TEST_F(DestinoDeImpresionTest, APrinterWhoseDefaultIsASheetOnItsSidePrintsUpright) {
    dispositivo.EmpezarLote();
    oDestinoDeImpresion().Impresora().setPageOrientation(QPageLayout::Landscape);
    Anadir();
    dispositivo.TerminarLote();
    EXPECT_EQ(HojaDe(u"uno.pdf"_s), u"595 x 842 pts (A4)"_s);
}

TEST_F(DestinoDeImpresionTest, ASheetOnItsSideIsNotOfferedAndThePaperIs) {
    Elegir([](QPrintDialog& dialogo) {
        ConPropiedades(dialogo, [](QDialog& propiedades) {
            EXPECT_FALSE(propiedades.findChild<QAbstractButton*>(u"landscape"_s)->isVisible());
            EXPECT_FALSE(propiedades.findChild<QAbstractButton*>(u"portrait"_s)->isVisible());
            EXPECT_TRUE(propiedades.findChild<QComboBox*>(u"pageSizeCombo"_s)->isVisible());
        });
        QTest::keyClick(dialogo.windowHandle(), Qt::Key_Escape);
    });
}

TEST_F(DestinoDeImpresionTest, TheFolderThatIsOfferedIsThereAndGoesAgainWhileNothingIsPrinted) {
    ASSERT_FALSE(QDir(Documentos()).exists());
    for (const Qt::Key tecla : {Qt::Key_Escape, Qt::Key_Return}) {
        Elegir([&](QPrintDialog& dialogo) {
            EXPECT_TRUE(QDir(Documentos()).exists());
            QTest::keyClick(dialogo.windowHandle(), tecla);
        });
        EXPECT_FALSE(QDir(Documentos()).exists());
    }
    Imprimir();
    EXPECT_EQ(Ficheros(), QStringList{u"uno.pdf"_s});
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

TEST_F(DestinoDeImpresionTest, AFileChosenThereGivesTheNameOfTheNextBatchAndTheFolderOfAllThatFollow) {
    const QString elegida = carpeta.filePath(u"elegida"_s);
    QDir().mkpath(elegida);
    ElegirFichero(elegida + u"/lo que sea.pdf"_s);
    dispositivo.EmpezarLote();
    Anadir();
    Anadir();
    dispositivo.TerminarLote();
    Imprimir();
    EXPECT_EQ(QDir(elegida).entryList(QDir::Files, QDir::Name),
              (QStringList{u"lo que sea (2).pdf"_s, u"lo que sea.pdf"_s, u"uno.pdf"_s}));
    EXPECT_TRUE(Ficheros().isEmpty());
    EXPECT_TRUE(pantalla.mensajes.front().texto.contains(u"lo que sea (2).pdf"));
    EXPECT_TRUE(pantalla.mensajes.back().texto.contains(elegida));
}

TEST_F(DestinoDeImpresionTest, AFolderChosenThereWithTheNameThatWasOfferedGivesEachDocumentItsOwnName) {
    const QString elegida = carpeta.filePath(u"elegida"_s);
    QDir().mkpath(elegida);
    ElegirFichero(elegida + u"/569.pdf"_s);
    Imprimir();
    EXPECT_EQ(QDir(elegida).entryList(QDir::Files), QStringList{u"uno.pdf"_s});
}

TEST_F(DestinoDeImpresionTest, OnlyTheFileThatTheUserAgreedToReplaceIsReplaced) {
    QDir().mkpath(Documentos());
    EscribirFichero(Ruta(u"mio.pdf"_s), "viejo");
    EscribirFichero(Ruta(u"uno.pdf"_s), "de otro día");
    ElegirFichero(Ruta(u"mio.pdf"_s));
    dispositivo.EmpezarLote();
    Anadir();
    Anadir();
    dispositivo.TerminarLote();
    Imprimir();
    EXPECT_EQ(Ficheros(), (QStringList{u"mio (2).pdf"_s, u"mio.pdf"_s, u"uno (2).pdf"_s, u"uno.pdf"_s}));
    EXPECT_EQ(HojaDe(u"mio.pdf"_s), u"595 x 842 pts (A4)"_s);
    EXPECT_EQ(LeerFichero(Ruta(u"uno.pdf"_s)), "de otro día");
}

TEST_F(DestinoDeImpresionTest, AFileThatCameAfterItsNameWasChosenIsNotReplaced) {
    QDir().mkpath(Documentos());
    ElegirFichero(Ruta(u"mio.pdf"_s));
    EscribirFichero(Ruta(u"mio.pdf"_s), "de otro programa");
    Imprimir();
    EXPECT_EQ(LeerFichero(Ruta(u"mio.pdf"_s)), "de otro programa");
    EXPECT_EQ(HojaDe(u"mio (2).pdf"_s), u"595 x 842 pts (A4)"_s);
}

TEST_F(DestinoDeImpresionTest, OpenedAgainItShowsWhatWasChosen) {
    const QString elegida = carpeta.filePath(u"elegida"_s);
    QDir().mkpath(elegida);
    Elegir([&](QPrintDialog& dialogo) {
        ElegirPapel(dialogo, u"A5"_s);
        Fichero(dialogo).setText(elegida + u"/mio.pdf"_s);
        dialogo.findChild<QSpinBox*>(u"copies"_s)->setValue(3);
        Aceptar(dialogo);
    });
    Elegir([&](QPrintDialog& dialogo) {
        EXPECT_EQ(Fichero(dialogo).text(), elegida + u"/mio.pdf"_s);
        EXPECT_EQ(dialogo.findChild<QSpinBox*>(u"copies"_s)->value(), 3);
        ConPropiedades(dialogo, [](const QDialog& propiedades) {
            EXPECT_TRUE(
                propiedades.findChild<QComboBox*>(u"pageSizeCombo"_s)->currentText().startsWith(u"A5"));
        });
        Aceptar(dialogo);
    });
    Elegir([](QPrintDialog& dialogo) { Aceptar(dialogo); });
    Imprimir();
    EXPECT_EQ(DatoDePdf(elegida + u"/mio.pdf"_s, u"Page size"_s), u"420 x 595 pts (A5)"_s);
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
