#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QTest>
#include <QWindow>

#include "app/MDIZT.h"
#include "app/Main.h"
#include "core/online/cZTActOnline.h"
#include "forms/widgets/ListaZT.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/FormularioDePrueba.h"

/// A language that has no texts: whatever asks for one raises 326.
inline constexpr qint16 kIdiomaSinTextos = 5000;

/// Base of the tests of working forms: the main window is on the screen and active, and keys and mouse go to
/// it as the window system sends them, so that focus, access keys and what lies on top count.
class PruebaEnMarco : public PruebaDeFormularios {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        RegistrarFormularios();
        oActOnline().ActOnline = 0;
        Formularios::Mostrar(MDIZT::kNombre.toString());
        marco = &ElFormulario<MDIZT>();
        marco->resize(1100, 850);
        ASSERT_TRUE(EsperarActiva(marco));
    }

    /// Puts a working form that does nothing in the place of one that the form under test shows.
    static void RegistrarVacio(const QString& nombre) {
        Formularios::Registrar(nombre, [nombre] { return new FormularioTrabajo(nombre); });
    }

    /// Shows the form under test and works on it from here on.
    void Abrir(QStringView nombre) {
        Formularios::Mostrar(nombre.toString());
        formulario = &Formularios::Obtener(nombre.toString()).Ventana();
        QCoreApplication::processEvents();
    }

    /// The control of that name of the form under test. There must be one.
    template <class W = QWidget>
    [[nodiscard]] W& Control(const QString& nombre) const {
        auto* control = formulario->findChild<W*>(nombre);
        if (control == nullptr) {
            qFatal("no control %s", qUtf8Printable(nombre));
        }
        return *control;
    }
    [[nodiscard]] QLineEdit& Caja(const QString& nombre) const { return Control<QLineEdit>(nombre); }
    [[nodiscard]] ListaZT& Lista(const QString& nombre) const { return Control<ListaZT>(nombre); }
    [[nodiscard]] QString TextoDe(const QString& nombre) const {
        return Control(nombre).property("text").toString();
    }

    /// Name of the control that has the focus.
    static QString Foco() {
        const QWidget* control = QApplication::focusWidget();
        return control == nullptr ? QString() : control->objectName();
    }
    /// Puts the focus on a control as a Tab would.
    void IrA(const QString& nombre) const {
        Control(nombre).setFocus(Qt::TabFocusReason);
        ASSERT_EQ(Foco(), nombre);
    }

    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers modificadores = Qt::NoModifier) const {
        QTest::keyClick(marco->windowHandle(), tecla, modificadores);
    }
    /// Types a text, character by character.
    void Teclear(const QString& texto) const {
        for (const QChar c : texto) {
            QTest::sendKeyEvent(QTest::Click, marco->windowHandle(), Qt::Key(c.toUpper().unicode()),
                                QString(c), Qt::NoModifier);
        }
    }
    /// Puts the focus on a box, which selects its text, and types over it.
    void Escribir(const QString& caja, const QString& texto) const {
        IrA(caja);
        Teclear(texto);
    }

    void Pulsar(const QString& nombre) const { PulsarEn(Control(nombre), Control(nombre).rect().center()); }
    /// Presses the mouse on a control and lets it go elsewhere, so that nothing is clicked.
    void ApretarSinSoltar(const QString& nombre) const {
        QTest::mousePress(marco->windowHandle(), Qt::LeftButton, {},
                          EnMarco(Control(nombre), Control(nombre).rect().center()));
        QTest::mouseRelease(marco->windowHandle(), Qt::LeftButton, {}, QPoint(2, marco->height() - 2));
    }
    void PulsarEn(const QWidget& control, QPoint lugar) const {
        QTest::mouseClick(marco->windowHandle(), Qt::LeftButton, {}, EnMarco(control, lugar));
    }
    void PulsarElemento(const QString& lista, int i) const {
        const ListaZT& l = Lista(lista);
        PulsarEn(*l.viewport(), CentroDe(l, i));
    }
    void PulsarDosVeces(const QString& lista, int i) const {
        const ListaZT& l = Lista(lista);
        QTest::mouseDClick(marco->windowHandle(), Qt::LeftButton, {}, EnMarco(*l.viewport(), CentroDe(l, i)));
    }

    [[nodiscard]] bool MenusHabilitados() const {
        return marco->findChild<QWidget*>(QStringLiteral("mnuDeclarante"))->isEnabled();
    }

    MDIZT* marco = nullptr;
    QWidget* formulario = nullptr;

  private:
    [[nodiscard]] QPoint EnMarco(const QWidget& control, QPoint lugar) const {
        return control.mapTo(marco, lugar);
    }
    static QPoint CentroDe(const ListaZT& lista, int i) {
        int columna = 0;
        while (lista.isColumnHidden(columna)) {
            ++columna;
        }
        return lista.visualRect(lista.model()->index(i - 1, columna)).center();
    }
};
