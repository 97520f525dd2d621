#include "tools/visita/Mano.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QWidget>
#include <utility>

#include "app/MDIZT.h"
#include "forms/runtime/Formularios.h"
#include "tools/visita/Exigir.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kEsperaMs = 20'000;
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

Mano::Mano(const QString& salida, QString idioma) : m_salida(salida), m_idioma(std::move(idioma)) {
    Exigir(m_salida.mkpath(u"."_s), salida);
}

QString Mano::Sufijo() const { return m_idioma == u"C" ? u"cas"_s : u"eus"_s; }

void Mano::Guardar(const QString& pantalla) {
    // The window manager and the server need a moment to show what has been painted.
    QTest::qWait(kReposoMs);
    const QString fichero = m_salida.absoluteFilePath(u"%1-%2.png"_s.arg(pantalla, Sufijo()));
    const QRect parte = ZonaVisible();
    const QPixmap imagen =
        QApplication::primaryScreen()->grabWindow(0, parte.x(), parte.y(), parte.width(), parte.height());
    Exigir(imagen.save(fichero), fichero);
    m_imagenes += fichero;
}

void Mano::CuandoAparezca(const QString& formulario, const Paso& paso) const {
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

QWidget& Mano::EnPantalla(const QString& nombre) const {
    Exigir(Formularios::Visible(nombre), u"falta la pantalla "_s + nombre);
    return Formularios::Obtener(nombre).Ventana();
}

void Mano::Teclear(QWidget& formulario, const QString& caja, const QString& texto) const {
    auto* control = formulario.findChild<QLineEdit*>(caja);
    Exigir(control != nullptr, caja);
    control->setFocus();
    control->selectAll();
    for (const QChar caracter : texto) {
        // Letters that no plain key gives, such as the enye, come with their text alone.
        const auto tecla =
            caracter.unicode() < 0x80 ? QTest::asciiToKey(caracter.toLatin1()) : Qt::Key_unknown;
        QTest::sendKeyEvent(QTest::Click, control, tecla, QString(caracter), Qt::NoModifier);
    }
    QTest::keyClick(control, Qt::Key_Tab);
}

void Mano::Teclear(QWidget& formulario, const std::vector<Casilla>& casillas) const {
    for (const Casilla& casilla : casillas) {
        Teclear(formulario, casilla.nombre, casilla.texto);
    }
}

void Mano::Pulsar(QWidget& formulario, const QString& boton) const {
    auto* control = formulario.findChild<QAbstractButton*>(boton);
    Exigir(control != nullptr && control->isEnabled(), boton);
    // Check boxes and options take clicks only on their mark and their words.
    const QPoint lugar = control->isCheckable() ? QPoint(8, control->height() / 2) : QPoint();
    QTest::mouseClick(control, Qt::LeftButton, {}, lugar);
}

void Mano::PulsarEtiqueta(QWidget& formulario, const QString& etiqueta) const {
    auto* control = formulario.findChild<QWidget*>(etiqueta);
    Exigir(control != nullptr && control->isEnabled(), etiqueta);
    QTest::mouseClick(control, Qt::LeftButton);
}

void Mano::Elegir(const QString& entrada) const {
    auto* accion = ElFormulario<MDIZT>().findChild<QAction*>(entrada);
    Exigir(accion != nullptr && accion->isEnabled(), entrada);
    accion->trigger();
}
