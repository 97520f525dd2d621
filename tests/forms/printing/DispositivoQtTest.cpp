#include "forms/printing/DispositivoQt.h"

#include <QPageLayout>

#include "core/base/Pantalla.h"
#include "tests/support/DiscoLleno.h"
#include "tests/support/LectorDePdf.h"
#include "tests/support/PruebaDePdf.h"

using namespace Qt::StringLiterals;

namespace {

class DispositivoQtTest : public PruebaDePdf {
  protected:
    void Dibujar(const QString& nombre, int paginas = 1) {
        dispositivo.NombrarDocumento(nombre);
        for (int i = 1; i < paginas; ++i) {
            dispositivo.Linea(10, 10, 20, 10);
            dispositivo.NuevaPagina();
        }
        dispositivo.Linea(10, 10, 20, 10);
    }
    /// A document within a batch.
    void Anadir(const QString& nombre) {
        Dibujar(nombre);
        dispositivo.TerminarDocumento();
    }
    /// A batch of one.
    void ImprimirUno(const QString& nombre) {
        dispositivo.EmpezarLote();
        Anadir(nombre);
        dispositivo.TerminarLote();
    }
    int FalloAlTerminar() {
        return NumeroDelError([this] {
            dispositivo.TerminarDocumento();
            dispositivo.TerminarLote();
        });
    }
};

}  // namespace

TEST_F(DispositivoQtTest, WithoutAPrinterEachDocumentBecomesAPdfOfItsName) {
    dispositivo.EmpezarLote();
    Anadir(u"uno"_s);
    Anadir(u"dos/tres"_s);
    dispositivo.TerminarLote();
    EXPECT_EQ(Ficheros(), (QStringList{u"dos-tres.pdf"_s, u"uno.pdf"_s}));
    EXPECT_TRUE(LeerFichero(Ruta(u"uno.pdf"_s)).startsWith("%PDF-"));
    EXPECT_TRUE(LeerFichero(Ruta(u"uno.pdf"_s)).trimmed().endsWith("%%EOF"));
}

TEST_F(DispositivoQtTest, OneNoticeAfterTheBatchSaysWhereTheyAre) {
    dispositivo.EmpezarLote();
    Anadir(u"uno"_s);
    Anadir(u"dos"_s);
    Pantalla().PonerPuntero(Puntero::Espera);
    EXPECT_TRUE(pantalla.mensajes.empty());
    dispositivo.TerminarLote();
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes.front().texto, u"Los documentos se han guardado en PDF en esta carpeta:\n"_s +
                                                   QDir::toNativeSeparators(Documentos()) +
                                                   u"\n\nuno.pdf\ndos.pdf"_s);
    EXPECT_EQ(pantalla.mensajes.front().titulo, u"Impresión"_s);
    EXPECT_TRUE(pantalla.mensajes.front().unBoton);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal) << "the wait pointer does not lie over it";
    // The next batch tells of its own only.
    dispositivo.EmpezarLote();
    dispositivo.TerminarLote();
    EXPECT_EQ(pantalla.mensajes.size(), 1U);
}

TEST_F(DispositivoQtTest, AFileChosenInTheDialogGivesTheFolder) {
    const QString elegida = carpeta.filePath(u"elegida"_s);
    dispositivo.EmpezarLote();
    oDestinoDeImpresion().Impresora().setOutputFileName(elegida + u"/cualquiera.pdf"_s);
    Anadir(u"uno"_s);
    dispositivo.TerminarLote();
    EXPECT_TRUE(QFile::exists(elegida + u"/uno.pdf"_s));
    EXPECT_FALSE(QFile::exists(elegida + u"/cualquiera.pdf"_s));
    EXPECT_TRUE(Ficheros().isEmpty());
}

TEST_F(DispositivoQtTest, ADocumentThatIsThereIsKeptAndANumberAdded) {
    ImprimirUno(u"uno"_s);
    const QByteArray primero = LeerFichero(Ruta(u"uno.pdf"_s));
    ImprimirUno(u"uno"_s);
    ImprimirUno(u"uno"_s);
    EXPECT_EQ(Ficheros(), (QStringList{u"uno (2).pdf"_s, u"uno (3).pdf"_s, u"uno.pdf"_s}));
    EXPECT_EQ(LeerFichero(Ruta(u"uno.pdf"_s)), primero);
}

TEST_F(DispositivoQtTest, PagesCountFromOneInEachDocument) {
    EXPECT_EQ(dispositivo.NumeroDePagina(), 1);
    dispositivo.NuevaPagina();
    EXPECT_EQ(dispositivo.NumeroDePagina(), 2);
    dispositivo.TerminarDocumento();
    EXPECT_EQ(dispositivo.NumeroDePagina(), 1);
}

TEST_F(DispositivoQtTest, TheFontStaysOverPagesAndDocuments) {
    dispositivo.FijarNombreDeLetra(u"MS Sans Serif"_s);
    dispositivo.FijarTamanoDeLetra(30);
    dispositivo.FijarNegrita(true);
    const double ancho = dispositivo.AnchoDeTexto(u"569"_s);
    const double alto = dispositivo.AltoDeTexto(u"569"_s);
    dispositivo.NuevaPagina();
    EXPECT_EQ(dispositivo.AnchoDeTexto(u"569"_s), ancho);
    dispositivo.TerminarDocumento();
    EXPECT_EQ(dispositivo.AnchoDeTexto(u"569"_s), ancho);
    EXPECT_EQ(dispositivo.AltoDeTexto(u"569"_s), alto);
}

TEST_F(DispositivoQtTest, TextsHaveTheSizeOfArialWhateverTheFontIsCalled) {
    // Advance widths of Arial in thousandths of the type size: digits 556, "W" 944, blank 278.
    constexpr double kPunto = 25.4 / 72;
    for (const QString& nombre : {u"Arial"_s, u"MS Sans Serif"_s}) {
        dispositivo.FijarNombreDeLetra(nombre);
        for (const double puntos : {7.0, 8.0, 9.0, 30.0}) {
            dispositivo.FijarTamanoDeLetra(puntos);
            EXPECT_NEAR(dispositivo.AnchoDeTexto(u"569"_s), 3 * 0.556 * puntos * kPunto, 0.01);
            EXPECT_NEAR(dispositivo.AnchoDeTexto(u"W "_s), 1.222 * puntos * kPunto, 0.01);
            EXPECT_NEAR(dispositivo.AltoDeTexto(u"x"_s), 1.117 * puntos * kPunto, 0.02);
        }
    }
    EXPECT_EQ(dispositivo.AnchoDeTexto(QString()), 0);
    dispositivo.FijarTamanoDeLetra(8);
    const double normal = dispositivo.AnchoDeTexto(u"Cuota"_s);
    dispositivo.FijarNegrita(true);
    EXPECT_GT(dispositivo.AnchoDeTexto(u"Cuota"_s), normal);
}

TEST_F(DispositivoQtTest, SizesDoNotDependOnTheResolutionOfThePrinter) {
    oDestinoDeImpresion().Impresora().setResolution(1200);
    const double ancho = dispositivo.AnchoDeTexto(u"Domicilio fiscal"_s);
    const double alto = dispositivo.AltoDeTexto(u"Domicilio fiscal"_s);
    oDestinoDeImpresion().Impresora().setResolution(75);
    // One that has measured nothing yet.
    DispositivoQt otro;
    EXPECT_EQ(otro.AnchoDeTexto(u"Domicilio fiscal"_s), ancho);
    EXPECT_EQ(otro.AltoDeTexto(u"Domicilio fiscal"_s), alto);
}

TEST_F(DispositivoQtTest, LinesAndFramesAreDrawnWithAPenOf15HundredthsOfAMillimetre) {
    dispositivo.EmpezarLote();
    Dibujar(u"uno"_s);
    dispositivo.Rectangulo(10, 20, 30, 40);
    dispositivo.Escribir(u"texto"_s);
    dispositivo.TerminarDocumento();
    dispositivo.TerminarLote();
    const std::vector<double> grosores = LeerPdf(Ruta(u"uno.pdf"_s)).front().grosores;
    EXPECT_EQ(grosores.size(), 2U);
    for (const double grosor : grosores) {
        EXPECT_NEAR(grosor, 0.15, 0.002);
    }
}

TEST_F(DispositivoQtTest, WhatIsGivenUpReachesNoPaper) {
    dispositivo.EmpezarLote();
    Dibujar(u"uno"_s, 3);
    dispositivo.AbandonarLote();
    EXPECT_TRUE(Ficheros().isEmpty());
    EXPECT_EQ(dispositivo.NumeroDePagina(), 1);
}

TEST_F(DispositivoQtTest, EndingADocumentThatHasNotBegunPrintsNothing) {
    dispositivo.TerminarDocumento();
    EXPECT_TRUE(Ficheros().isEmpty());
}

TEST_F(DispositivoQtTest, AFailureEndsTheBatchAtTheNextDocumentOrWithIt) {
    EscribirFichero(Documentos(), "no folder");
    dispositivo.EmpezarLote();
    Dibujar(u"uno"_s);
    const QString descripcion = DescripcionDelError([this] {
        dispositivo.TerminarDocumento();
        dispositivo.TerminarLote();
    });
    EXPECT_TRUE(descripcion.contains(QDir::toNativeSeparators(Documentos()))) << descripcion.toStdString();
    EXPECT_EQ(dispositivo.NumeroDePagina(), 1) << "the next document begins anew";
    EXPECT_TRUE(pantalla.mensajes.empty());

    dispositivo.EmpezarLote();
    Anadir(u"uno"_s);
    EXPECT_EQ(NumeroDelError([this] { Anadir(u"dos"_s); }), 76);
    dispositivo.AbandonarLote();
    QFile::remove(Documentos());
    ImprimirUno(u"tres"_s);
    EXPECT_EQ(Ficheros(), QStringList{u"tres.pdf"_s});
}

TEST_F(DispositivoQtTest, DocumentsThatHaveEndedStayWhenTheBatchIsGivenUp) {
    dispositivo.EmpezarLote();
    Anadir(u"uno"_s);
    Dibujar(u"dos"_s);
    dispositivo.AbandonarLote();
    EXPECT_EQ(Ficheros(), QStringList{u"uno.pdf"_s});
}

TEST_F(DispositivoQtTest, AFullDiskLeavesNothingUnderTheName) {
    dispositivo.EmpezarLote();
    Dibujar(u"uno"_s, 20);
    const int error = [this] {
        const DiscoLleno lleno(1'000);
        return FalloAlTerminar();
    }();
    EXPECT_EQ(error, 57);
    EXPECT_TRUE(Ficheros().isEmpty());
}

TEST_F(DispositivoQtTest, PaperIsA4PortraitWhereThereIsNoPrinter) {
    const QPageLayout hoja = oDestinoDeImpresion().Impresora().pageLayout();
    EXPECT_EQ(hoja.pageSize().id(), QPageSize::A4);
    EXPECT_EQ(hoja.orientation(), QPageLayout::Portrait);
}
