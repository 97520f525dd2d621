#include <QTest>
#include <QMdiSubWindow>
#include "exchange/frmZTExpDeclarantes.h"
#include "exchange/frmZTFicheroAExportar.h"
#include "exchange/frmZTImpDeclarantes.h"
#include "exchange/BarraDeProgreso.h"
#include "tests/exchange/PruebaDeIntercambio.h"
using namespace Qt::StringLiterals;
struct Foto : PruebaDeIntercambio { void TestBody() override {} };
TEST_F(Foto, Fotos) {
    const QString d = qEnvironmentVariable("FOTOS");
    for (int i = 1; i < 40; ++i) Guardar(NifDePersona(1234567 * i), u"EMPRESA DE ÑANDÚES NÚMERO %1, S.L."_s.arg(i));
    for (const qint16 l : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = l; const QString s = l ? u"-eus"_s : u"-cas"_s;
        auto foto=[&](const QString& n){ QCoreApplication::processEvents(); formulario->parentWidget()->grab().save(d + n + s + u".png"_s); };
        Abrir(frmZTExpDeclarantes::kNombre); foto(u"/exp1"_s);
        PulsarElemento(u"lsvDeclarantes"_s, 3); Tecla(Qt::Key_Down, Qt::ShiftModifier); Pulsar(u"cmdUnoF"_s); foto(u"/exp2"_s);
        Pulsar(u"cmdTodosF"_s); foto(u"/exp3"_s);
        Pulsar(u"cmdAceptar"_s);
        formulario=&Formularios::Obtener(frmZTFicheroAExportar::kNombre.toString()).Ventana();
        foto(u"/fic1"_s);
        QFile::remove(EnCarpeta(u"Declaran.txt"_s));
        
        QTimer t; QObject::connect(&t,&QTimer::timeout,[&]{ if (BarraLlena()>0.5) { t.stop(); foto(u"/fic2"_s);} }); t.start(0);
        Pulsar(u"cmdAceptar"_s); foto(u"/fic3"_s);
        Tecla(Qt::Key_Return); 
        { QFile f(EnCarpeta(u"Declaran.txt"_s)); f.open(QIODevice::Append); f.write("\r\n\r\n"); }
        Abrir(frmZTImpDeclarantes::kNombre); foto(u"/imp1"_s);
        QTimer t2; QObject::connect(&t2,&QTimer::timeout,[&]{ if (BarraLlena()>0.5) { t2.stop(); foto(u"/imp2"_s);} }); t2.start(0);
        Pulsar(u"cmdAceptar"_s); foto(u"/imp3"_s);
        Formularios::Descargar(u"frmZTImpDeclarantes"_s);
    }
}

TEST_F(Foto, Dialogo) {
    const QString otro = EnCarpeta(u"otro.txt"_s);
    EscribirFichero(otro, "x");
    Abrir(frmZTImpDeclarantes::kNombre);
    CuandoSeExamine([otro](QFileDialog& d) {
        auto* caja = d.findChild<QLineEdit*>(u"fileNameEdit"_s);
        caja->setText(otro);
        qInfo() << "foco" << QApplication::focusWidget() << d.selectedFiles();
        d.grab().save(u"/tmp/dialogo.png"_s);
        QTest::keyClick(caja, Qt::Key_Return);
        qInfo() << d.isVisible() << d.result();
        if (d.isVisible()) d.reject();
    });
    Pulsar(u"cmdModificar"_s);
    qInfo() << TextoDe(u"lblFichero"_s);
}
