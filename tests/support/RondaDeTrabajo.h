#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTimer>
#include <functional>

#include "forms/runtime/Formularios.h"
#include "forms/runtime/NombresDeFormulario.h"

/// The work of a user on the first declaration of the list, which is on the screen: open it and its annexes,
/// change a figure, save, close, look at the printer dialog, and print a draft to a PDF, which is thrown
/// away. Every step comes from the event loop and goes back to it, as a user's does.
class RondaDeTrabajo {
  public:
    /// `numero` is the figure that is typed.
    void Hacer(int numero) {
        Paso([] { Pulsar(Forma::ListaDeclaraciones, u"cmddatdecla"); });
        Paso([] { Pulsar(Forma::Declaracion, u"cmdDetalles"); });
        Paso([numero] { Teclear(u"cnuBaseImp1", QString::number(numero)); });
        Paso([] { Pulsar(Forma::DetDeclaracion, u"cmdGuardarDeclaracion"); });
        Paso([] { Pulsar(Forma::DetDeclaracion, u"cmdCerrarAnexo"); });
        Paso([] { Pulsar(Forma::Declaracion, u"cmdCerrarDec"); });
        Paso([this] {
            m_vistas = 0;
            Atender();
            Pulsar(Forma::ListaDeclaraciones, u"cmdImpOfi");
        });
        m_impresos += TirarImpresos();
    }

    /// Documents that have come out so far.
    [[nodiscard]] int Impresos() const { return m_impresos; }

  private:
    template <class W>
    static W& Control(const QWidget& ventana, QStringView nombre) {
        auto* control = ventana.findChild<W*>(nombre.toString());
        if (control == nullptr) {
            qFatal("no control %s", qUtf8Printable(nombre.toString()));
        }
        return *control;
    }
    static QWidget& Ventana(QStringView formulario) { return Formularios::Obtener(formulario).Ventana(); }
    static void Pulsar(QStringView formulario, QStringView boton) {
        Control<QAbstractButton>(Ventana(formulario), boton).click();
    }
    /// Types a figure over that of a box, and leaves it.
    static void Teclear(QStringView caja, const QString& cifra) {
        auto& control = Control<QLineEdit>(Ventana(Forma::DetDeclaracion), caja);
        control.window()->activateWindow();
        QCoreApplication::processEvents();
        control.setFocus(Qt::TabFocusReason);
        if (!control.hasFocus()) {
            qFatal("%s does not take the focus", qUtf8Printable(control.objectName()));
        }
        for (const QChar c : cifra) {
            QKeyEvent tecla(QEvent::KeyPress, c.unicode(), Qt::NoModifier, QString(c));
            QApplication::sendEvent(&control, &tecla);
        }
        Control<QWidget>(Ventana(Forma::DetDeclaracion), u"lsvEstablecimientos").setFocus(Qt::TabFocusReason);
    }

    static void Paso(const std::function<void()>& cuerpo) {
        QEventLoop bucle;
        QTimer::singleShot(0, &bucle, [&] {
            cuerpo();
            QTimer::singleShot(0, &bucle, &QEventLoop::quit);
        });
        bucle.exec();
    }

    /// Waits for the dialogs of printing and works them, one over the other, to the notice at the end.
    void Atender() {
        QTimer::singleShot(1, qApp, [this] {
            QWidget* dialogo = QApplication::activeModalWidget();
            const QString nombre = dialogo == nullptr ? QString() : dialogo->objectName();
            if (nombre == Forma::MsgBox) {
                Control<QAbstractButton>(*dialogo, u"cmdAceptar").click();
                return;
            }
            Atender();
            if (nombre == u"cdbImprimir") {
                qobject_cast<QDialog*>(dialogo)->reject();
            } else if (nombre == Forma::Imp) {
                AtenderOpciones(*dialogo);
            }
        });
    }
    void AtenderOpciones(const QWidget& opciones) {
        if (m_vistas++ == 0) {
            Control<QAbstractButton>(opciones, u"cmdOpcImp").click();
            Control<QCheckBox>(opciones, u"chkBor").setChecked(true);
            Control<QAbstractButton>(opciones, u"cmdAceptar").click();
        }
    }

    static int TirarImpresos() {
        QDir documentos(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
        const QStringList ficheros = documentos.entryList({QStringLiteral("*.pdf")}, QDir::Files);
        for (const QString& fichero : ficheros) {
            documentos.remove(fichero);
        }
        return static_cast<int>(ficheros.size());
    }

    int m_vistas = 0;
    int m_impresos = 0;
};
