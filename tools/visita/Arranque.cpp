#include <QAbstractButton>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

#include "app/MDIZT.h"
#include "app/Main.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/runtime/Formularios.h"
#include "tools/visita/Etapas.h"
#include "tools/visita/Exigir.h"

using namespace Qt::StringLiterals;

namespace {

void Menus(Mano& mano) {
    auto& marco = ElFormulario<MDIZT>();
    for (const QString& menu : {u"mnuDeclarante"_s, u"mnuUtil"_s, u"mnuayu"_s}) {
        auto* este = marco.findChild<QMenu*>(menu);
        const QRect entrada = marco.menuBar()->actionGeometry(este->menuAction());
        este->popup(marco.menuBar()->mapToGlobal(entrada.bottomLeft()));
        mano.Guardar(u"04-"_s + menu);
        este->close();
    }
}

void Avisos(Mano& mano) {
    mano.CuandoAparezca(u"frmZTMsgBox"_s, [&mano](QWidget& caja) {
        mano.Guardar(u"06-pregunta"_s);
        QTest::keyClick(&caja, Qt::Key_Escape);
    });
    Mensaje(Texto(Id::PreguntaEliminarEstablecimiento), Texto(Id::MantenimientoDeEstablecimientos), false);
    mano.CuandoAparezca(u"frmZTGestErrores"_s, [&mano](QWidget& errores) {
        mano.Guardar(u"07-error"_s);
        mano.Pulsar(errores, u"cmdMas"_s);
        mano.Guardar(u"08-error-detalle"_s);
        QTest::keyClick(errores.findChild<QAbstractButton*>(u"cmdAceptar"_s), Qt::Key_Return);
    });
    ShowError(u"MDIZT"_s, u"MDIZT.mnuAbrDec_Click"_s,
              u"General.CargarResultado\r\nNo se encuentra el fichero"_s);
}

}  // namespace

void PrimerArranque(Mano& mano) {
    // The splash stands for its four seconds; its picture is taken while it does.
    QTimer::singleShot(1000, qApp, [&mano] { mano.Guardar(u"01-inicio"_s); });
    mano.CuandoAparezca(u"frmZTIdioma"_s, [&mano](QWidget& idioma) {
        mano.Guardar(u"02-idioma"_s);
        mano.Pulsar(idioma, mano.Idioma() == u"C" ? u"cmdCastellano"_s : u"cmdEuskera"_s);
    });
    Main();
    Exigir(Formularios::Visible(u"MDIZT"_s), u"MDIZT"_s);
    mano.Guardar(u"03-principal"_s);
}

void MenusYAvisos(Mano& mano) {
    Menus(mano);
    mano.CuandoAparezca(u"frmZTAbout"_s, [&mano](QWidget& acerca) {
        mano.Guardar(u"05-acerca"_s);
        QTest::keyClick(acerca.findChild<QAbstractButton*>(u"cmdAceptar"_s), Qt::Key_Return);
    });
    mano.Elegir(u"mnuacerca"_s);
    Avisos(mano);
}
