#pragma once

#include <QAccessible>
#include <QFileDialog>
#include <QTimer>
#include <algorithm>
#include <functional>

#include "core/exchange/RegistroDeIntercambio.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "tests/support/DatosDeIntercambio.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/PruebaEnMarco.h"

/// Base of the tests of the screens of the exchange.
class PruebaDeIntercambio : public PruebaEnMarco {
  protected:
    static qint32 Guardar(const QString& nif, const QString& nombre) {
        svrZELT::cZTDeclarante servidor;
        servidor.mdbmod = Entorno().mdbmod;
        return servidor.GuardarDeclarante(DeclaranteDePrueba(nif, nombre));
    }
    static QByteArray Linea(const QString& nif, const QString& nombre) {
        return LineaDeDeclarante(DeclaranteDePrueba(nif, nombre)).toLatin1() + "\r\n";
    }

    /// Path of a file in the program folder.
    [[nodiscard]] QString EnCarpeta(const QString& nombre) const {
        return Entorno().CarpetaPrograma + QDir::separator() + nombre;
    }

    /// Works the file dialog as soon as it is on the screen; to be called before the line that opens it.
    void CuandoSeExamine(const std::function<void(QFileDialog&)>& cuerpo) {
        auto* reloj = new QTimer(qApp);
        QObject::connect(reloj, &QTimer::timeout, qApp, [=] {
            auto* dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialogo != nullptr && dialogo->isVisible()) {
                reloj->deleteLater();
                reloj->stop();
                cuerpo(*dialogo);
            }
        });
        reloj->start(5);
    }
    /// Answers the file dialog with that name, put in whole so that no list of suggestions takes the keys.
    void ResponderConFichero(const QString& nombre) {
        CuandoSeExamine([nombre](QFileDialog& dialogo) {
            auto* caja = dialogo.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            caja->setText(nombre);
            QTest::keyClick(caja, Qt::Key_Return);
        });
    }

    /// While the next work runs, presses all that could disturb it: keys, buttons, the close box.
    void MolestarDuranteElTrabajo() {
        QTimer::singleShot(0, qApp, [this] {
            molestado = true;
            for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Escape}) {
                Tecla(tecla);
            }
            for (const Qt::Key tecla : {Qt::Key_A, Qt::Key_C, Qt::Key_M}) {
                Tecla(tecla, Qt::AltModifier);
            }
            for (const QString& boton : {QStringLiteral("cmdAceptar"), QStringLiteral("cmdCancelar"),
                                         QStringLiteral("cmdModificar")}) {
                Pulsar(boton);
            }
            marco->windowHandle()->close();
        });
    }

    /// While the next work runs, presses buttons as programs for assistance and timers do: without input.
    void PulsarSinEntradaDuranteElTrabajo() {
        QTimer::singleShot(0, qApp, [this] {
            molestado = true;
            Control<QAbstractButton>(QStringLiteral("cmdModificar")).click();
            for (const QString& boton : {QStringLiteral("cmdAceptar"), QStringLiteral("picAceptar"),
                                         QStringLiteral("cmdCancelar"), QStringLiteral("picCancelar")}) {
                Control<QAbstractButton>(boton).click();
                QAccessibleInterface* accesible = QAccessible::queryAccessibleInterface(&Control(boton));
                accesible->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
            }
        });
    }
    /// Waits until the buttons that are held down by such a press have come up.
    [[nodiscard]] bool EsperarBotonesSueltos() const {
        return QTest::qWaitFor([this] {
            const auto botones = formulario->findChildren<QAbstractButton*>();
            return std::ranges::none_of(botones, [](const QAbstractButton* b) { return b->isDown(); });
        });
    }

    /// The part of its ground that the bar fills.
    [[nodiscard]] double BarraLlena() const {
        const auto& fondo = Control<QFrame>(QStringLiteral("shpFondo"));
        return static_cast<double>(Control(QStringLiteral("shpBarra")).width()) /
               fondo.contentsRect().width();
    }
    [[nodiscard]] bool SeVe(const QString& control) const { return Control(control).isVisible(); }

    bool molestado = false;
};
