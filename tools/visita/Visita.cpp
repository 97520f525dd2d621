#include "tools/visita/Visita.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include "base/Instancias.h"
#include "shell/Entorno.h"
#include "shell/Formularios.h"
#include "shell/GeneralZT.h"
#include "shell/MDIZT.h"
#include "shell/Main.h"
#include "shell/Textos.h"
#include "tools/visita/Exigir.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kEsperaMs = 10'000;
constexpr int kLatidoMs = 20;
constexpr int kReposoMs = 150;

/// What the windows of the program take up on the screen, their frames included.
QRect ZonaVisible() {
    QRect zona;
    for (const QWidget* ventana : QApplication::topLevelWidgets()) {
        if (ventana->isVisible()) {
            zona |= ventana->frameGeometry();
        }
    }
    return zona;
}

}  // namespace

Visita::Visita(const QString& salida) : m_salida(salida) { Exigir(m_salida.mkpath(u"."_s), salida); }

void Visita::Guardar(const QString& pantalla) {
    // The window manager and the server need a moment to show what has been painted.
    QTest::qWait(kReposoMs);
    const QString fichero =
        m_salida.absoluteFilePath(u"%1-%2.png"_s.arg(pantalla, m_idioma == u"C" ? u"cas"_s : u"eus"_s));
    const QRect parte = ZonaVisible();
    const QPixmap imagen =
        QApplication::primaryScreen()->grabWindow(0, parte.x(), parte.y(), parte.width(), parte.height());
    Exigir(imagen.save(fichero), fichero);
    m_imagenes += fichero;
}

void Visita::CuandoAparezca(const QString& formulario, const Paso& paso) {
    auto* latido = new QTimer(qApp);
    const qint64 limite = QDateTime::currentMSecsSinceEpoch() + kEsperaMs;
    QObject::connect(latido, &QTimer::timeout, latido, [=] {
        if (!Formularios::Visible(formulario)) {
            Exigir(QDateTime::currentMSecsSinceEpoch() < limite, u"no aparece "_s + formulario);
            return;
        }
        latido->stop();
        latido->deleteLater();
        QWidget& ventana = Formularios::Obtener(formulario).Ventana();
        Exigir(QTest::qWaitForWindowExposed(&ventana), formulario);
        paso(ventana);
    });
    latido->start(kLatidoMs);
}

void Visita::PrimerArranque() {
    // The splash stands for its four seconds; its picture is taken while it does.
    QTimer::singleShot(1000, qApp, [this] { Guardar(u"01-inicio"_s); });
    CuandoAparezca(u"frmZTIdioma"_s, [this](QWidget& idioma) {
        Guardar(u"02-idioma"_s);
        const QString boton = m_idioma == u"C" ? u"cmdCastellano"_s : u"cmdEuskera"_s;
        QTest::mouseClick(idioma.findChild<QAbstractButton*>(boton), Qt::LeftButton);
    });
    Main();
    Exigir(Formularios::Visible(u"MDIZT"_s), u"MDIZT"_s);
    Guardar(u"03-principal"_s);
}

void Visita::AcercaDe() {
    auto& marco = ElFormulario<MDIZT>();
    for (const QString& menu : {u"mnuDeclarante"_s, u"mnuUtil"_s, u"mnuayu"_s}) {
        auto* este = marco.findChild<QMenu*>(menu);
        const QRect entrada = marco.menuBar()->actionGeometry(este->menuAction());
        este->popup(marco.menuBar()->mapToGlobal(entrada.bottomLeft()));
        Guardar(u"04-"_s + menu);
        este->close();
    }
    CuandoAparezca(u"frmZTAbout"_s, [this](QWidget& acerca) {
        Guardar(u"05-acerca"_s);
        QTest::keyClick(acerca.findChild<QAbstractButton*>(u"cmdAceptar"_s), Qt::Key_Return);
    });
    marco.findChild<QAction*>(u"mnuacerca"_s)->trigger();
}

void Visita::Avisos() {
    CuandoAparezca(u"frmZTMsgBox"_s, [this](QWidget& caja) {
        Guardar(u"06-pregunta"_s);
        QTest::keyClick(&caja, Qt::Key_Escape);
    });
    Mensaje(Texto(193), Texto(10), false);
    CuandoAparezca(u"frmZTGestErrores"_s, [this](QWidget& errores) {
        Guardar(u"07-error"_s);
        QTest::mouseClick(errores.findChild<QAbstractButton*>(u"cmdMas"_s), Qt::LeftButton);
        Guardar(u"08-error-detalle"_s);
        QTest::keyClick(errores.findChild<QAbstractButton*>(u"cmdAceptar"_s), Qt::Key_Return);
    });
    ShowError(u"MDIZT"_s, u"MDIZT.mnuAbrDec_Click"_s,
              u"General.CargarResultado\r\nNo se encuentra el fichero"_s);
}

void Visita::Recorrer(const QString& idioma) {
    m_idioma = idioma;
    PrimerArranque();
    AcercaDe();
    Avisos();
    NuevoDeclarante();
    NuevosEstablecimientos();
    Declaraciones();
    Formularios::Reiniciar();
    ReiniciarInstancias();
}
