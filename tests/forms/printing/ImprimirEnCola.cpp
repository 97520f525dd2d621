// Prints on the print queue "impreso" of the scheduler at CUPS_SERVER; run by cola_privada.sh, which looks at
// what came out.

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QSpinBox>
#include <QTest>
#include <QWindow>
#include <algorithm>

#include "app/ZTAplicacion.h"
#include "forms/printing/DestinoDeImpresion.h"
#include "forms/printing/DispositivoQt.h"
#include "tests/support/AlDialogo.h"
#include "tests/support/EntornoDeImpresion.h"
#include "tests/support/LectorDePdf.h"

using namespace Qt::StringLiterals;

namespace {

class ColaTest : public EntornoDeImpresion {
  protected:
    void SetUp() override {
        EntornoDeImpresion::SetUp();
        SustituirLetras();
        FijarImpresora(&dispositivo);
        oImprimir().Administracion = oImprimir().Interesado = true;
        oImprimir().Borrador = oImprimir().EntBank = true;
    }

    void ImprimirUno() {
        dispositivo.NombrarDocumento(u"uno"_s);
        dispositivo.Linea(10, 10, 20, 10);
        dispositivo.TerminarDocumento();
    }
    static void Administrar(const QString& programa, const QStringList& argumentos) {
        ASSERT_EQ(QProcess::execute(programa, argumentos), 0) << programa.toStdString();
    }
    /// Nothing goes to the printer, and the failure names it.
    void EsperarFallo() {
        EXPECT_EQ(NumeroDelError([this] { ImprimirUno(); }), 482);
        const QString descripcion = DescripcionDelError([this] { ImprimirUno(); });
        EXPECT_TRUE(descripcion.startsWith(u"Error de impresora: impreso. ")) << descripcion.toStdString();
        EXPECT_GT(descripcion.size(), u"Error de impresora: impreso. "_s.size());
    }

    /// Opens the printer dialog, works it and accepts it.
    template <class F>
    static void Elegir(F accion) {
        QWidget ventana;
        const AlDialogo<QPrintDialog> espera([&accion](QPrintDialog& dialogo) {
            accion(dialogo);
            QTest::keyClick(dialogo.windowHandle(), Qt::Key_Return);
        });
        oDestinoDeImpresion().Elegir(ventana);
    }
    static QComboBox& Impresoras(const QPrintDialog& dialogo) {
        return *dialogo.findChild<QComboBox*>(u"printers"_s);
    }
    /// Opens the page of properties, works its choice of paper and accepts it.
    template <class F>
    static void ConPapeles(const QPrintDialog& dialogo, F accion) {
        const AlDialogo<QDialog> espera([&accion](QDialog& propiedades) {
            accion(*propiedades.findChild<QComboBox*>(u"pageSizeCombo"_s));
            QTest::keyClick(propiedades.windowHandle(), Qt::Key_Return);
        });
        dialogo.findChild<QAbstractButton*>(u"properties"_s)->click();
    }

    DispositivoQt dispositivo;
};

}  // namespace

TEST_F(ColaTest, FourCopies) {
    GuardarLineas(8);
    ImprimirDeclaracion();
    EXPECT_EQ(oDestinoDeImpresion().Impresora().outputFormat(), QPrinter::NativeFormat);
    EXPECT_EQ(oDestinoDeImpresion().Impresora().printerName(), u"impreso"_s);
    EXPECT_TRUE(pantalla.mensajes.empty()) << "nothing is told of real printers";
}

// What came out of FourCopies: the paper's corner is the origin, not that of its printable part.
TEST_F(ColaTest, PlacesOnPaper) {
    const QDir salida(QFile::decodeName(qgetenv("IMPRESO_SALIDA")));
    const QStringList trabajos = salida.entryList({u"* 569_B48000012_2007_2T_administracion.pdf"_s});
    ASSERT_EQ(trabajos.size(), 1);
    const PaginaDePdf pagina = LeerPdf(salida.filePath(trabajos.front())).front();
    const auto cerca = [](QPointF a, QPointF b) { return (a - b).manhattanLength() < 0.4; };
    // Two words whose tops are 35 % of their height above their lines, one of them at the far end.
    for (const auto& [texto, lugar] :
         {std::pair(u"B48000012"_s, QPointF(22, 50)), std::pair(u"20001"_s, QPointF(141, 67))}) {
        EXPECT_TRUE(std::ranges::any_of(pagina.palabras, [&, &t = texto, &l = lugar](const PalabraDePdf& p) {
            return p.texto == t && cerca(p.caja.topLeft() + QPointF(0, 0.35 * p.caja.height()), l);
        })) << texto.toStdString();
    }
    for (const QLineF& lado : {QLineF(10, 192, 192, 192), QLineF(192, 192, 192, 241)}) {
        EXPECT_TRUE(std::ranges::any_of(pagina.trazos, [&](const QLineF& trazo) {
            return cerca(trazo.p1(), lado.p1()) && cerca(trazo.p2(), lado.p2());
        })) << lado.y2();
    }
}

TEST_F(ColaTest, DialogOpenedAgain) {
    DestinoDeImpresion& destino = oDestinoDeImpresion();
    Elegir([](QPrintDialog& dialogo) {
        EXPECT_EQ(Impresoras(dialogo).currentText(), u"impreso"_s);
        Impresoras(dialogo).setCurrentText(u"otra"_s);
        ConPapeles(dialogo, [](QComboBox& papeles) {
            EXPECT_EQ(papeles.currentText(), u"A4"_s) << "the other one's own";
            papeles.setCurrentText(u"A5"_s);
        });
        dialogo.findChild<QSpinBox*>(u"copies"_s)->setValue(2);
    });
    // Without a look at the paper, and with one.
    Elegir([](QPrintDialog& dialogo) { EXPECT_EQ(Impresoras(dialogo).currentText(), u"otra"_s); });
    Elegir([](QPrintDialog& dialogo) {
        EXPECT_EQ(Impresoras(dialogo).currentText(), u"otra"_s);
        EXPECT_EQ(dialogo.findChild<QSpinBox*>(u"copies"_s)->value(), 2);
        ConPapeles(dialogo, [](const QComboBox& papeles) { EXPECT_EQ(papeles.currentText(), u"A5"_s); });
    });
    EXPECT_EQ(destino.Impresora().printerName(), u"otra"_s);
    EXPECT_EQ(destino.Impresora().pageLayout().pageSize().id(), QPageSize::A5);
    EXPECT_EQ(destino.Impresora().copyCount(), 2);
    const QString fichero = carpeta.filePath(u"mio.pdf"_s);
    Elegir([&](QPrintDialog& dialogo) {
        Impresoras(dialogo).setCurrentIndex(Impresoras(dialogo).count() - 1);
        dialogo.findChild<QLineEdit*>(u"filename"_s)->setText(fichero);
    });
    Elegir([&](QPrintDialog& dialogo) {
        EXPECT_EQ(Impresoras(dialogo).currentIndex(), Impresoras(dialogo).count() - 1);
        EXPECT_EQ(dialogo.findChild<QLineEdit*>(u"filename"_s)->text(), fichero);
    });
    EXPECT_EQ(destino.Impresora().outputFormat(), QPrinter::PdfFormat);
    EXPECT_EQ(destino.Impresora().outputFileName(), fichero);
}

TEST_F(ColaTest, QueueThatRefuses) {
    dispositivo.EmpezarLote();
    ImprimirUno();
    Administrar(u"cupsreject"_s, {u"impreso"_s});
    EsperarFallo();
    Administrar(u"cupsaccept"_s, {u"impreso"_s});
    ImprimirUno();
}

TEST_F(ColaTest, QueueThatIsGone) {
    dispositivo.EmpezarLote();
    ImprimirUno();
    Administrar(u"lpadmin"_s, {u"-x"_s, u"impreso"_s});
    EsperarFallo();
}

TEST_F(ColaTest, SchedulerThatIsKilled) {
    dispositivo.EmpezarLote();
    ImprimirUno();
    Administrar(u"kill"_s, {u"-KILL"_s, qEnvironmentVariable("IMPRESO_PLANIFICADOR")});
    EsperarFallo();
}
