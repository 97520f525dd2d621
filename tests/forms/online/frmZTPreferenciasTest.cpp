#include "forms/online/frmZTPreferencias.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "core/online/ActualizacionOnlineZT.h"
#include "core/online/cZTActOnline.h"
#include "core/run/Textos.h"
#include "core/run/cZTFecha.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "tests/support/CanalDePrueba.h"
#include "tests/support/DialogoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class frmZTPreferenciasTest : public DialogoDePrueba {
  protected:
    void SetUp() override {
        DialogoDePrueba::SetUp();
        oFecha().IDI(u"C"_s);
        oActOnline().ActOnline = 0;
        Entorno().ComprobarActualizacion = [this] { ++comprobaciones; };
    }

    template <class F>
    void Mostrar(F accion) {
        AlAbrirse(frmZTPreferencias::kNombre, accion);
        Formularios::MostrarModal(frmZTPreferencias::kNombre.toString());
    }

    static qint16 AvisoGuardado() {
        svrZELT::cZTDatosGeneral servidor;
        servidor.mdblec = Entorno().mdbmod;
        return servidor.ObtenerActOnline();
    }
    static QString IdiomaGuardado() {
        svrZELT::cZTDatosGeneral servidor;
        servidor.mdbmod = Entorno().mdbmod;
        return servidor.ObtenerIdioma();
    }
    static QCheckBox& Aviso(const QWidget& v) { return Control<QCheckBox>(v, "chkActOnline"); }
    static QAbstractButton& Boton(const QWidget& v, const char* nombre) {
        return Control<QAbstractButton>(v, nombre);
    }

    int comprobaciones = 0;
};

}  // namespace

TEST_F(frmZTPreferenciasTest, EveryCaptionHasItsTextInBothLanguages) {
    const std::vector<std::pair<const char*, int>> textos{{"lblActualizaciones", 210}, {"chkActOnline", 209},
                                                          {"lblActAhora", 208},        {"lblIdioma", 25},
                                                          {"cmdAceptar", 28},          {"cmdCancelar", 29}};
    for (const QString& idioma : {u"C"_s, u"E"_s}) {
        oFecha().IDI(idioma);
        Mostrar([&](QWidget& v) {
            EXPECT_EQ(v.windowTitle(), Texto(205));
            for (const auto& [nombre, id] : textos) {
                EXPECT_EQ(Control(v, nombre).property("text").toString(), Texto(id)) << nombre;
            }
            EXPECT_EQ(Boton(v, "optCast").text(), u"Castellano"_s);
            EXPECT_EQ(Boton(v, "optEusk").text(), u"Euskera"_s);
            for (const char* opcion : {"optCast", "optEusk"}) {
                EXPECT_EQ(Boton(v, opcion).accessibleDescription(), Texto(25)) << "for screen readers";
            }
            v.close();
        });
    }
}

TEST_F(frmZTPreferenciasTest, TheBoxIsCheckedExactlyWhenTheSettingIsOne) {
    for (const qint16 ajuste : {qint16{1}, qint16{0}, qint16{-1}, qint16{2}}) {
        oActOnline().ActOnline = ajuste;
        Mostrar([ajuste](QWidget& v) {
            EXPECT_EQ(Aviso(v).isChecked(), ajuste == 1);
            v.close();
        });
        EXPECT_EQ(oActOnline().ActOnline, ajuste);
    }
}

TEST_F(frmZTPreferenciasTest, TheOptionIsThatOfTheLanguageAndEuskeraForAnyCodeButC) {
    for (const QString& idioma : {u"C"_s, u"E"_s, QString()}) {
        oFecha().IDI(idioma);
        Mostrar([&idioma](QWidget& v) {
            EXPECT_EQ(Boton(v, "optCast").isChecked(), idioma == u"C");
            EXPECT_EQ(Boton(v, "optEusk").isChecked(), idioma != u"C");
            v.close();
        });
    }
}

TEST_F(frmZTPreferenciasTest, AcceptingWithoutAChangeStoresTheSameValuesAgain) {
    for (const auto& [idioma, ajuste] : {std::pair{u"C"_s, qint16{1}}, {u"E"_s, qint16{0}}}) {
        oFecha().IDI(idioma);
        oActOnline().ActOnline = ajuste;
        oActOnline().GuardarActOnline();
        Mostrar([](QWidget& v) { Pulsar(v, "cmdAceptar"); });
        EXPECT_FALSE(Formularios::Cargado(u"frmZTPreferencias"_s));
        EXPECT_EQ(oFecha().IDI(), idioma);
        EXPECT_EQ(IdiomaGuardado(), idioma);
        EXPECT_EQ(oActOnline().ActOnline, ajuste);
        EXPECT_EQ(AvisoGuardado(), ajuste);
    }
}

TEST_F(frmZTPreferenciasTest, AnUndecidedSettingTurnsIntoZeroWithTheBoxUnchecked) {
    oActOnline().ActOnline = -1;
    Mostrar([](QWidget& v) { Pulsar(v, "cmdAceptar"); });
    EXPECT_EQ(oActOnline().ActOnline, 0);
    EXPECT_EQ(AvisoGuardado(), 0);
}

TEST_F(frmZTPreferenciasTest, WithAnEmptyStoredLanguageAcceptingStoresEuskera) {
    oFecha().IDI(QString());
    Mostrar([](QWidget& v) { Pulsar(v, "cmdAceptar"); });
    EXPECT_EQ(IdiomaGuardado(), u"E"_s);
    EXPECT_EQ(Entorno().OffsetIdioma, kOffsetEuskera);
}

TEST_F(frmZTPreferenciasTest, TheCheckedBoxIsStored) {
    Mostrar([](QWidget& v) {
        QTest::keyClick(&Aviso(v), Qt::Key_Space);
        EXPECT_EQ(oActOnline().ActOnline, 0) << "not before it is accepted";
        Pulsar(v, "cmdAceptar");
    });
    EXPECT_EQ(oActOnline().ActOnline, 1);
    EXPECT_EQ(AvisoGuardado(), 1);
}

TEST_F(frmZTPreferenciasTest, AChangeOfLanguageIsStoredAndChangesTheMainWindowAtOnce) {
    const QWidget& marco = Formularios::Obtener(u"MDIZT"_s).Ventana();
    for (const auto& [opcion, idioma] : {std::pair{"optEusk", u"E"_s}, {"optCast", u"C"_s}}) {
        Mostrar([opcion = opcion](QWidget& v) {
            QTest::keyClick(&Control(v, opcion), Qt::Key_Space);
            Pulsar(v, "cmdAceptar");
        });
        EXPECT_EQ(IdiomaGuardado(), idioma);
        EXPECT_EQ(oFecha().IDI(), idioma);
        EXPECT_EQ(marco.windowTitle(), TextoDeFila(idioma == u"E" ? 1096 : 96));
    }
}

TEST_F(frmZTPreferenciasTest, CancelEscapeAndTheCloseBoxDropEveryChange) {
    const QWidget& marco = Formularios::Obtener(u"MDIZT"_s).Ventana();
    const QString titulo = marco.windowTitle();
    const std::vector<std::function<void(QWidget&)>> caminos{
        [](QWidget& v) { Pulsar(v, "cmdCancelar"); }, [](QWidget& v) { QTest::keyClick(&v, Qt::Key_Escape); },
        [](QWidget& v) { v.close(); }};
    for (const auto& camino : caminos) {
        Mostrar([&camino](QWidget& v) {
            Aviso(v).click();
            Boton(v, "optEusk").click();
            camino(v);
        });
        EXPECT_FALSE(Formularios::Cargado(u"frmZTPreferencias"_s));
        EXPECT_EQ(oFecha().IDI(), u"C"_s);
        EXPECT_EQ(IdiomaGuardado(), u"C"_s);
        EXPECT_EQ(Entorno().OffsetIdioma, 0);
        EXPECT_EQ(oActOnline().ActOnline, 0);
        EXPECT_EQ(AvisoGuardado(), -1);
        EXPECT_EQ(marco.windowTitle(), titulo);
    }
}

TEST_F(frmZTPreferenciasTest, TheLinkStartsACheckByClickEnterAndSpaceAndNothingElseChanges) {
    Mostrar([this](QWidget& v) {
        Pulsar(v, "lblActAhora");
        EXPECT_EQ(comprobaciones, 1);
        for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            QTest::keyClick(&Control(v, "lblActAhora"), tecla);
        }
        EXPECT_EQ(comprobaciones, 4);
        EXPECT_TRUE(Formularios::Visible(u"frmZTPreferencias"_s));
        v.close();
    });
    EXPECT_EQ(AvisoGuardado(), -1);
}

TEST_F(frmZTPreferenciasTest, TheLinkIsWorkedOnceHoweverLongTheKeyIsHeld) {
    Mostrar([this](QWidget& v) {
        for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            QKeyEvent repetida(QEvent::KeyPress, tecla, Qt::NoModifier, QString(), true);
            QCoreApplication::sendEvent(&Control(v, "lblActAhora"), &repetida);
        }
        EXPECT_EQ(comprobaciones, 0);
        EXPECT_TRUE(Formularios::Visible(u"frmZTPreferencias"_s)) << "no button takes the key either";
        v.close();
    });
}

TEST_F(frmZTPreferenciasTest, TheLinkIsReachedByTabAndUnderlined) {
    Mostrar([](QWidget& v) {
        Aviso(v).setFocus();
        QTest::keyClick(&Aviso(v), Qt::Key_Tab);
        EXPECT_EQ(v.focusWidget(), &Control(v, "lblActAhora"));
        EXPECT_TRUE(Control(v, "lblActAhora").font().underline());
        EXPECT_FALSE(Aviso(v).font().underline());
        v.close();
    });
}

TEST_F(frmZTPreferenciasTest, TheTabKeyStopsAtTheOptionInForceOnly) {
    for (const auto& [idioma, opcion] : {std::pair{u"C"_s, "optCast"}, {u"E"_s, "optEusk"}}) {
        oFecha().IDI(idioma);
        Mostrar([opcion = opcion](QWidget& v) {
            Control(v, "lblActAhora").setFocus();
            for (const char* siguiente : {opcion, "cmdAceptar"}) {
                QTest::keyClick(v.focusWidget(), Qt::Key_Tab);
                EXPECT_EQ(v.focusWidget(), &Control(v, siguiente)) << siguiente;
            }
            v.close();
        });
    }
}

TEST_F(frmZTPreferenciasTest, TheWholeFormIsWorkedByKeyboard) {
    Mostrar([](QWidget& v) {
        Aviso(v).setFocus();
        QTest::keyClick(v.focusWidget(), Qt::Key_Space);
        for (const char* siguiente : {"lblActAhora", "optCast"}) {
            QTest::keyClick(v.focusWidget(), Qt::Key_Tab);
            ASSERT_EQ(v.focusWidget(), &Control(v, siguiente));
        }
        QTest::keyClick(v.focusWidget(), Qt::Key_Down);
        ASSERT_EQ(v.focusWidget(), &Control(v, "optEusk"));
        QTest::keyClick(v.focusWidget(), Qt::Key_Tab);
        ASSERT_EQ(v.focusWidget(), &Control(v, "cmdAceptar"));
        QTest::keyClick(v.focusWidget(), Qt::Key_Return);
    });
    EXPECT_EQ(IdiomaGuardado(), u"E"_s);
    EXPECT_EQ(AvisoGuardado(), 1);
}

TEST_F(frmZTPreferenciasTest, ACheckFromHereWithAnUpToDateProgramShowsTheVersionsWithoutADownload) {
    Entorno().LectorVersion = [] { return std::optional(VersionFichero{{1, 2, 77, 3}, {4, 3, 2, 1}}); };
    Entorno().Milisegundos = [ahora = qint64{0}]() mutable { return ahora += 1000; };
    CanalDePrueba canal;
    canal.contenido = FicheroDeVersion("1.2.3");
    canal.alMostrar = [] { Formularios::MostrarModal(u"frmZTVersionCheck"_s); };
    Entorno().ComprobarActualizacion = [&canal] {
        canal.preferencias = Formularios::Visible(u"frmZTPreferencias"_s);
        ComprobarActualizacion(canal);
    };
    bool visto = false;
    Mostrar([&](QWidget& v) {
        AlAbrirse(u"frmZTVersionCheck", [&visto](QWidget& version) {
            visto = true;
            EXPECT_FALSE(Control(version, "CmdActualizar").isEnabled());
            Pulsar(version, "CmdContinuar");
        });
        Pulsar(v, "lblActAhora");
        v.close();
    });
    EXPECT_TRUE(visto);
    EXPECT_EQ(oActOnline().SitAct, 3);
}

TEST_F(frmZTPreferenciasTest, ComingBackToItShowsTheSettingsInForceAnew) {
    Entorno().ComprobarActualizacion = [this] {
        oActOnline().SitAct = 1;
        AlAbrirse(u"frmZTSinConexion", [](QWidget& aviso) {
            Boton(aviso, "ChkNoPreg").click();
            Pulsar(aviso, "CmdContinuar");
        });
        Formularios::MostrarModal(u"frmZTSinConexion"_s);
    };
    oActOnline().ActOnline = 1;
    Mostrar([](QWidget& v) {
        ASSERT_TRUE(Aviso(v).isChecked());
        Boton(v, "optEusk").click();
        Pulsar(v, "lblActAhora");
        EXPECT_FALSE(Aviso(v).isChecked()) << "the choice made in the other dialog";
        EXPECT_TRUE(Boton(v, "optCast").isChecked()) << "the language in force";
        Pulsar(v, "cmdAceptar");
    });
    EXPECT_EQ(AvisoGuardado(), 0);
    EXPECT_EQ(IdiomaGuardado(), u"C"_s);
}

TEST_F(frmZTPreferenciasTest, AStoreThatRefusesIsShownAndTheFormStays) {
    Mostrar([](QWidget& v) {
        Aviso(v).click();
        CerrarAlmacenes();
        EscribirFichero(Entorno().mdbmod, QByteArray(4096, 'x'));
        Pulsar(v, "cmdAceptar");
        EXPECT_TRUE(Formularios::Visible(u"frmZTPreferencias"_s));
        v.close();
    });
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores[0].evento, u"frmZTPreferencias.cmdAceptar_Click"_s);
    EXPECT_EQ(terminado, -1);
}
