// Prints on the print queue "impreso" of the scheduler at CUPS_SERVER; run by cola_privada.sh, which looks at
// what came out.

#include <QDir>
#include <QPrinter>
#include <QProcess>
#include <algorithm>

#include "app/ZTAplicacion.h"
#include "forms/printing/DestinoDeImpresion.h"
#include "forms/printing/DispositivoQt.h"
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
