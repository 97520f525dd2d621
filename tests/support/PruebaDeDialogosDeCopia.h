#pragma once

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

#include "forms/copies/CopiasQt.h"
#include "tests/support/DialogoDePrueba.h"
#include "tests/support/FicherosDePrueba.h"

/// Base of the tests of the dialogs of the copies: the real channel is in force, and the messages are those
/// that the recording screen writes down.
class PruebaDeDialogosDeCopia : public DialogoDePrueba {
  protected:
    void SetUp() override {
        DialogoDePrueba::SetUp();
        FijarCopias(&canal);
    }
    void TearDown() override {
        FijarCopias(nullptr);
        DialogoDePrueba::TearDown();
    }

    static QString TextoDe(const QWidget& ventana, const char* nombre) {
        return Control(ventana, nombre).property("text").toString();
    }
    static void Escribir(const QWidget& ventana, const char* caja, const QString& texto) {
        auto& control = Control<QLineEdit>(ventana, caja);
        control.setFocus();
        control.selectAll();
        QTest::keyClick(&control, Qt::Key_Delete);
        QTest::keyClicks(&control, texto);
    }
    /// Presses the button that opens the file dialog, and has `mirar` look at that; then takes a file there.
    template <class F>
    static void ElegirEnElDialogo(QWidget& ventana, const QString& ruta, F mirar) {
        auto* reloj = new QTimer(&ventana);
        QObject::connect(reloj, &QTimer::timeout, &ventana, [=] {
            auto* dialogo = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialogo == nullptr || !dialogo->isVisible()) {
                return;
            }
            reloj->stop();
            mirar(*dialogo, dialogo->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text());
            dialogo->selectFile(ruta);
            auto* abrir = dialogo->findChild<QDialogButtonBox*>()->buttons().constFirst();
            EXPECT_TRUE(QTest::qWaitFor([&] { return abrir->isEnabled(); })) << "the file is not found";
            abrir->click();
        });
        reloj->start(5);
        Pulsar(ventana, "cmdExaminar");
    }

    [[nodiscard]] QString copias() const { return carpeta.filePath(QStringLiteral("backups")); }
    [[nodiscard]] QString copia() const { return copias() + QStringLiteral("/ZELTMod_bak.mdb"); }

    /// The text of the only message shown so far, which is forgotten.
    QString UnicoMensaje() {
        EXPECT_EQ(pantalla.mensajes.size(), 1U);
        QString texto = pantalla.mensajes.empty() ? QString() : pantalla.mensajes.front().texto;
        pantalla.mensajes.clear();
        return texto;
    }

    CopiasQt canal;
};
