#include "app/frmZTIdioma.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>

#include "core/online/cZTActOnline.h"
#include "core/run/Textos.h"
#include "core/run/cZTFecha.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "tests/support/DialogoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTituloDelMarco = 96;

class frmZTIdiomaTest : public DialogoDePrueba {
  protected:
    void SetUp() override {
        DialogoDePrueba::SetUp();
        oFecha().LeerIdioma();
        oActOnline().LeerActOnline();
    }

    template <class F>
    void Mostrar(F accion) {
        AlAbrirse(frmZTIdioma::kNombre, accion);
        Formularios::MostrarModal(frmZTIdioma::kNombre.toString());
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
};

}  // namespace

TEST_F(frmZTIdiomaTest, ItSpeaksBothLanguagesAtOnceInBoth) {
    for (const QString& idioma : {u"C"_s, u"E"_s}) {
        oFecha().IDI(idioma);
        Mostrar([](QWidget& v) {
            EXPECT_EQ(v.windowTitle(), u"Hizkuntza hautapena / Selección de Idioma"_s);
            EXPECT_EQ(Control<QGroupBox>(v, "fraIdioma").title(), u"Hizkuntza / Idioma"_s);
            EXPECT_EQ(Control<QPushButton>(v, "cmdCastellano").text(), u"Castellano"_s);
            EXPECT_EQ(Control<QPushButton>(v, "cmdEuskera").text(), u"Euskara"_s);
            EXPECT_EQ(
                Aviso(v).text(),
                u"¿desea que se le informe sobre la existencia de actualizaciones cada vez que se inicie "
                "el programa?"_s);
            v.close();
        });
    }
}

TEST_F(frmZTIdiomaTest, OnAFreshInstallationTheLoadAloneStoresTheSettingAsOn) {
    ASSERT_EQ(AvisoGuardado(), -1);
    ASSERT_EQ(oActOnline().ActOnline, -1);
    Mostrar([](QWidget& v) {
        EXPECT_TRUE(Aviso(v).isChecked());
        EXPECT_EQ(oActOnline().ActOnline, 1);
        EXPECT_EQ(AvisoGuardado(), 1);
        v.close();
    });
}

TEST_F(frmZTIdiomaTest, TheBoxShowsTheSetting) {
    oActOnline().ActOnline = 1;
    Mostrar([](QWidget& v) {
        EXPECT_TRUE(Aviso(v).isChecked());
        v.close();
    });
    oActOnline().ActOnline = 0;
    oActOnline().GuardarActOnline();
    Mostrar([](QWidget& v) {
        EXPECT_FALSE(Aviso(v).isChecked());
        v.close();
    });
    EXPECT_EQ(AvisoGuardado(), 0);
}

TEST_F(frmZTIdiomaTest, AnUncheckedBoxAtLoadIsNoClickAndStoresNothing) {
    oActOnline().ActOnline = 0;
    Mostrar([](QWidget& v) { v.close(); });
    EXPECT_EQ(AvisoGuardado(), -1);
}

TEST_F(frmZTIdiomaTest, EachClickOnTheBoxStoresTheSetting) {
    Mostrar([](QWidget& v) {
        QTest::keyClick(&Aviso(v), Qt::Key_Space);
        EXPECT_EQ(oActOnline().ActOnline, 0);
        EXPECT_EQ(AvisoGuardado(), 0);
        QTest::keyClick(&Aviso(v), Qt::Key_Space);
        EXPECT_EQ(oActOnline().ActOnline, 1);
        EXPECT_EQ(AvisoGuardado(), 1);
        v.close();
    });
}

TEST_F(frmZTIdiomaTest, TheFocusStartsOnTheLanguageInForce) {
    oFecha().IDI(u"C"_s);
    Mostrar([](QWidget& v) {
        EXPECT_EQ(v.focusWidget(), &Control(v, "cmdCastellano"));
        v.close();
    });
    oFecha().IDI(u"E"_s);
    Mostrar([](QWidget& v) {
        EXPECT_EQ(v.focusWidget(), &Control(v, "cmdEuskera"));
        v.close();
    });
}

TEST_F(frmZTIdiomaTest, WithAnEmptyStoredLanguageTheFocusStartsOnEuskera) {
    ASSERT_EQ(oFecha().IDI(), QString());
    ASSERT_EQ(Entorno().OffsetIdioma, 0);
    Mostrar([](QWidget& v) {
        EXPECT_EQ(v.focusWidget(), &Control(v, "cmdEuskera"));
        v.close();
    });
}

TEST_F(frmZTIdiomaTest, ReturnMovesTheFocusAndPressesNothing) {
    oFecha().IDI(u"C"_s);
    Mostrar([](QWidget& v) {
        for (const char* siguiente : {"cmdEuskera", "chkActOnline", "cmdCastellano"}) {
            QTest::keyClick(v.focusWidget(), Qt::Key_Return);
            EXPECT_EQ(v.focusWidget(), &Control(v, siguiente)) << siguiente;
        }
        QTest::keyClick(v.focusWidget(), Qt::Key_Enter, Qt::KeypadModifier);
        EXPECT_EQ(v.focusWidget(), &Control(v, "cmdEuskera"));
        EXPECT_TRUE(Formularios::Cargado(u"frmZTIdioma"_s));
        v.close();
    });
    EXPECT_EQ(oFecha().IDI(), u"C"_s);
    EXPECT_EQ(oActOnline().ActOnline, 1);
}

TEST_F(frmZTIdiomaTest, SpacePressesTheButtonInFocus) {
    Mostrar([](QWidget& v) { QTest::keyClick(v.focusWidget(), Qt::Key_Space); });
    EXPECT_EQ(oFecha().IDI(), u"E"_s);
}

TEST_F(frmZTIdiomaTest, TheButtonsStoreTheLanguageAndUnloadTheForm) {
    Mostrar([](QWidget& v) { Pulsar(v, "cmdEuskera"); });
    EXPECT_EQ(oFecha().IDI(), u"E"_s);
    EXPECT_EQ(Entorno().OffsetIdioma, 1000);
    EXPECT_EQ(IdiomaGuardado(), u"E"_s);
    EXPECT_FALSE(Formularios::Cargado(u"frmZTIdioma"_s));
    Mostrar([](QWidget& v) { Pulsar(v, "cmdCastellano"); });
    EXPECT_EQ(oFecha().IDI(), u"C"_s);
    EXPECT_EQ(Entorno().OffsetIdioma, 0);
    EXPECT_EQ(IdiomaGuardado(), u"C"_s);
}

TEST_F(frmZTIdiomaTest, AChangeOfLanguageUpdatesTheMainWindowAtOnce) {
    const QWidget& marco = Formularios::Obtener(u"MDIZT"_s).Ventana();
    Mostrar([](QWidget& v) { Pulsar(v, "cmdEuskera"); });
    EXPECT_EQ(marco.windowTitle(), TextoDeFila(kTituloDelMarco + 1000));
    Mostrar([](QWidget& v) { Pulsar(v, "cmdCastellano"); });
    EXPECT_EQ(marco.windowTitle(), TextoDeFila(kTituloDelMarco));
}

TEST_F(frmZTIdiomaTest, TheLoadDisablesTheMenus) {
    const QWidget& marco = Formularios::Obtener(u"MDIZT"_s).Ventana();
    const auto habilitado = [&marco](const char* nombre) { return Control(marco, nombre).isEnabled(); };
    ASSERT_TRUE(habilitado("mnuDeclarante"));
    Mostrar([&](QWidget& v) {
        EXPECT_FALSE(habilitado("mnuDeclarante"));
        EXPECT_FALSE(habilitado("mnuUtil"));
        v.close();
    });
}

TEST_F(frmZTIdiomaTest, TheUpdateCheckRunsOnlyWhileTheSettingIsStillUndecided) {
    int pasadas = 0;
    Entorno().ComprobarActualizacion = [&] {
        ++pasadas;
        const QWidget& v = Formularios::Obtener(u"frmZTIdioma"_s).Ventana();
        EXPECT_TRUE(v.isVisible());
        EXPECT_FALSE(Aviso(v).isVisible());
        EXPECT_EQ(oFecha().IDI(), u"E"_s) << "the language is stored first";
    };
    Mostrar([](QWidget& v) { Pulsar(v, "cmdEuskera"); });
    EXPECT_EQ(pasadas, 0) << "the load has decided it";
    Mostrar([](QWidget& v) {
        oActOnline().ActOnline = -1;
        Pulsar(v, "cmdEuskera");
    });
    EXPECT_EQ(pasadas, 1);
}

TEST_F(frmZTIdiomaTest, TheMainWindowChangesItsCaptionsBeforeTheUpdateCheck) {
    const QWidget& marco = Formularios::Obtener(u"MDIZT"_s).Ventana();
    QString titulo;
    Entorno().ComprobarActualizacion = [&] { titulo = marco.windowTitle(); };
    Mostrar([](QWidget& v) {
        oActOnline().ActOnline = -1;
        Pulsar(v, "cmdEuskera");
    });
    EXPECT_EQ(titulo, TextoDeFila(kTituloDelMarco + 1000));
}

TEST_F(frmZTIdiomaTest, TheCloseBoxLeavesTheLanguageAndEscapeDoesNothing) {
    oFecha().IDI(u"C"_s);
    Mostrar([](QWidget& v) {
        QTest::keyClick(&v, Qt::Key_Escape);
        EXPECT_TRUE(Formularios::Visible(u"frmZTIdioma"_s));
        v.close();
    });
    EXPECT_EQ(oFecha().IDI(), u"C"_s);
}
