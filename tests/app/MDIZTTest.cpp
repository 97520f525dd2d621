#include "app/MDIZT.h"

#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTextBrowser>
#include <QToolBar>
#include <QToolButton>

#include "app/Main.h"
#include "core/online/cZTActOnline.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTListaDeclarantes.h"
#include "core/run/Textos.h"
#include "core/run/cZTFecha.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "forms/help/VentanaAyuda.h"
#include "forms/runtime/Menus.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

/// A working form that does nothing: what the commands open.
template <const char16_t* nombre>
struct frmVacio : FormularioTrabajo {
    static constexpr QStringView kNombre = nombre;
    frmVacio() : FormularioTrabajo(kNombre.toString()) {}
};

constexpr char16_t kDeclarante[] = u"frmZTDeclarante";
constexpr char16_t kLista[] = u"frmZTListaDeclarantes";
constexpr char16_t kDeclaraciones[] = u"frmZTListaDeclaraciones";

class MDIZTTest : public PruebaDeFormularios {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        RegistrarFormularios();
        RegistrarFormulario<frmVacio<kDeclarante>>();
        RegistrarFormulario<frmVacio<kLista>>();
        RegistrarFormulario<frmVacio<kDeclaraciones>>();
        oActOnline().ActOnline = 0;
    }

    static qint32 CrearDeclarante(const QString& nif, const QString& nombre) {
        Registro r(18);
        r[1] = nif;
        r[2] = nombre;
        for (const std::size_t texto : {3, 4, 6, 7, 8, 9, 13}) {
            r[texto] = QString();
        }
        for (const std::size_t numero : {5, 10, 11, 12, 14, 15}) {
            r[numero] = qint32{0};
        }
        svrZELT::cZTDeclarante servidor;
        servidor.mdbmod = Entorno().mdbmod;
        return servidor.GuardarDeclarante(r);
    }

    static MDIZT& Marco() {
        Formularios::Mostrar(u"MDIZT"_s);
        return ElFormulario<MDIZT>();
    }

    static QAction& Entrada(const QString& nombre) {
        return *ElFormulario<MDIZT>().findChild<QAction*>(nombre);
    }
    static QMenu& Menu(const QString& nombre) { return *ElFormulario<MDIZT>().findChild<QMenu*>(nombre); }
    static QToolBar& Barra() { return *ElFormulario<MDIZT>().findChild<QToolBar*>(u"tlbMdi"_s); }
    static QToolButton& Boton(const QString& clave) { return *Barra().findChild<QToolButton*>(clave); }

    /// Puts a help topic whose title is its own name into both help sets.
    void CrearTema(const QString& tema) const {
        for (const QString& juego : {u"Ayuda/Ayuda/"_s, u"Ayuda/Laguntza/"_s}) {
            QDir().mkpath(carpeta.filePath(juego));
            EscribirFichero(carpeta.filePath(juego + tema), "<title>" + tema.toUtf8() + "</title>");
        }
    }
    /// The topic that the help window shows, after which it is closed; empty when there is no help window.
    static QString TemaMostrado() {
        auto* ayuda = ElFormulario<MDIZT>().findChild<VentanaAyuda*>();
        if (ayuda == nullptr || !ayuda->isVisible()) {
            return {};
        }
        ayuda->close();
        return ayuda->findChild<QTextBrowser*>(u"txtAyuda"_s)->documentTitle();
    }

    static QStringList NombresDe(const QMenu& menu) {
        QStringList nombres;
        for (const QAction* accion : menu.actions()) {
            nombres += accion->menu() != nullptr ? accion->menu()->objectName() : accion->objectName();
        }
        return nombres;
    }
};

}  // namespace

TEST_F(MDIZTTest, MenusAndEntriesStandInTheirOrder) {
    const MDIZT& marco = Marco();
    QStringList barra;
    for (const QAction* accion : marco.menuBar()->actions()) {
        barra += accion->menu()->objectName();
    }
    EXPECT_EQ(barra, QStringList({u"mnuDeclarante"_s, u"mnuUtil"_s, u"mnuayu"_s}));
    EXPECT_EQ(NombresDe(Menu(u"mnuDeclarante"_s)),
              QStringList({u"mnuNuedec"_s, u"mnuAbrDec"_s, u"mnuEliDec"_s, u"separa2"_s, u"d1"_s, u"d2"_s,
                           u"d3"_s, u"d4"_s, u"sepa2"_s, u"mnuSalir"_s}));
    EXPECT_EQ(NombresDe(Menu(u"mnuUtil"_s)),
              QStringList({u"mnuExport"_s, u"mnuImportDec"_s, u"separador"_s, u"mnuBackup"_s, u"mnuRestore"_s,
                           u"separa"_s, u"mnuPreferencias"_s, u"mnuAsistenciaOnline"_s}));
    EXPECT_EQ(NombresDe(Menu(u"mnuAsistenciaOnline"_s)),
              QStringList({u"mnuDescripAsisOnline"_s, u"mnuAsisOnline"_s}));
    EXPECT_EQ(NombresDe(Menu(u"mnuayu"_s)), QStringList({u"mnucontind"_s, u"mnuacerca"_s}));
    EXPECT_TRUE(Entrada(u"separa2"_s).isSeparator());
}

TEST_F(MDIZTTest, CaptionsFollowTheLanguageAtOnce) {
    MDIZT& marco = Marco();
    EXPECT_EQ(marco.windowTitle(), u"Impuesto sobre Ventas Minoristas de Determinados Hidrocarburos"_s);
    EXPECT_EQ(Menu(u"mnuDeclarante"_s).title(), u"Dec&larante"_s);
    EXPECT_EQ(Entrada(u"mnuNuedec"_s).text(), u"Nuevo declarante"_s);
    EXPECT_EQ(Boton(u"Salir"_s).toolTip(), u"Salir"_s);
    oFecha().IDI(u"E"_s);
    marco.AnadirCaptions();
    EXPECT_EQ(marco.windowTitle(), u"Zenbait Hidrokarburoren Txikizkako Salmenten gaineko Zerga"_s);
    EXPECT_EQ(Menu(u"mnuDeclarante"_s).title(), u"&Aitortzailea"_s);
    EXPECT_EQ(Menu(u"mnuUtil"_s).title(), u"Aukerak"_s);
    EXPECT_EQ(Menu(u"mnuayu"_s).title(), u"Laguntza"_s);
    EXPECT_EQ(Entrada(u"mnuNuedec"_s).text(), u"Aitortzaile berria"_s);
    EXPECT_EQ(Entrada(u"mnuExport"_s).text(), u"Esportatu aitortzaileen datuak"_s);
    EXPECT_EQ(Entrada(u"mnuBackup"_s).text(), u"Segurtasun kopia sortu"_s);
    EXPECT_EQ(Menu(u"mnuAsistenciaOnline"_s).title(), u"On-line laguntza"_s);
    EXPECT_EQ(Boton(u"Salir"_s).toolTip(), u"Irten"_s);
}

TEST_F(MDIZTTest, EveryMenuAndEntryHasItsTextInBothLanguages) {
    const std::vector<std::pair<QString, int>> textos{{u"mnuDeclarante"_s, 2},
                                                      {u"mnuNuedec"_s, 5},
                                                      {u"mnuAbrDec"_s, 6},
                                                      {u"mnuEliDec"_s, 7},
                                                      {u"mnuSalir"_s, 20},
                                                      {u"mnuUtil"_s, 3},
                                                      {u"mnuExport"_s, 15},
                                                      {u"mnuImportDec"_s, 16},
                                                      {u"mnuBackup"_s, 219},
                                                      {u"mnuRestore"_s, 220},
                                                      {u"mnuPreferencias"_s, 205},
                                                      {u"mnuAsistenciaOnline"_s, 221},
                                                      {u"mnuDescripAsisOnline"_s, 222},
                                                      {u"mnuAsisOnline"_s, 221},
                                                      {u"mnuayu"_s, 4},
                                                      {u"mnucontind"_s, 21},
                                                      {u"mnuacerca"_s, 22}};
    MDIZT& marco = Marco();
    for (const int offset : {0, 1000}) {
        Entorno().OffsetIdioma = static_cast<qint16>(offset);
        marco.AnadirCaptions();
        for (const auto& [nombre, id] : textos) {
            const auto* menu = marco.findChild<QMenu*>(nombre);
            EXPECT_EQ(menu != nullptr ? menu->title() : Entrada(nombre).text(), TextoDeFila(id + offset))
                << nombre.toStdString();
        }
    }
}

TEST_F(MDIZTTest, ToolButtonsStandInTheirOrder) {
    Marco();
    QStringList claves;
    for (const QAction* accion : Barra().actions()) {
        claves += accion->objectName();
    }
    EXPECT_EQ(claves, QStringList({u"Nueva"_s, u"Abrir"_s, u"Eliminar"_s, u"Ayuda"_s, u"Salir"_s}));
}

TEST_F(MDIZTTest, EveryToolButtonHasItsKeyToolTipAndPicture) {
    const std::vector<std::pair<QString, int>> botones{
        {u"Nueva"_s, 5}, {u"Abrir"_s, 6}, {u"Eliminar"_s, 7}, {u"Ayuda"_s, 4}, {u"Salir"_s, 20}};
    MDIZT& marco = Marco();
    for (const int offset : {0, 1000}) {
        Entorno().OffsetIdioma = static_cast<qint16>(offset);
        marco.AnadirCaptions();
        for (const auto& [clave, id] : botones) {
            EXPECT_EQ(Boton(clave).toolTip(), TextoDeFila(id + offset));
            EXPECT_FALSE(Boton(clave).icon().pixmap(24, 24).isNull()) << clave.toStdString();
        }
    }
}

TEST_F(MDIZTTest, WithoutDeclarantsOnlyWhatNeedsNoneIsEnabled) {
    Marco();
    for (const QString& nombre : {u"mnuExport"_s, u"mnuAbrDec"_s, u"mnuEliDec"_s}) {
        EXPECT_FALSE(Entrada(nombre).isEnabled());
    }
    EXPECT_FALSE(Boton(u"Abrir"_s).isEnabled());
    EXPECT_FALSE(Boton(u"Eliminar"_s).isEnabled());
    EXPECT_TRUE(Entrada(u"mnuImportDec"_s).isEnabled());
    EXPECT_TRUE(Boton(u"Nueva"_s).isEnabled());
    EXPECT_TRUE(Boton(u"Salir"_s).isEnabled());
    EXPECT_FALSE(Entrada(u"d1"_s).isVisible());
}

TEST_F(MDIZTTest, OneDeclarantGivesOneRecentEntryWithKeyNifAndName) {
    const qint32 clave = CrearDeclarante(u"12345678Z"_s, u"PEREZ & HIJOS"_s);
    Marco();
    EXPECT_TRUE(Entrada(u"d1"_s).isVisible());
    EXPECT_EQ(Entrada(u"d1"_s).text(), u"12345678Z - PEREZ && HIJOS"_s);
    EXPECT_EQ(Entrada(u"d1"_s).data().toInt(), clave);
    EXPECT_FALSE(Entrada(u"d2"_s).isVisible());
    for (const QString& nombre : {u"mnuExport"_s, u"mnuAbrDec"_s, u"mnuEliDec"_s}) {
        EXPECT_TRUE(Entrada(nombre).isEnabled());
    }
    EXPECT_TRUE(Boton(u"Abrir"_s).isEnabled());
}

TEST_F(MDIZTTest, FiveDeclarantsGiveFourEntriesThoseOfRowsOneToFour) {
    for (int i = 1; i <= 5; ++i) {
        CrearDeclarante(u"NIF%1"_s.arg(i), u"NOMBRE %1"_s.arg(i));
    }
    Marco();
    QStringList textos;
    for (const QString& nombre : {u"d1"_s, u"d2"_s, u"d3"_s, u"d4"_s}) {
        EXPECT_TRUE(Entrada(nombre).isVisible());
        textos += Entrada(nombre).text();
    }
    EXPECT_EQ(textos, QStringList({u"NIF5 - NOMBRE 5"_s, u"NIF4 - NOMBRE 4"_s, u"NIF3 - NOMBRE 3"_s,
                                   u"NIF2 - NOMBRE 2"_s}));
}

TEST_F(MDIZTTest, AWorkingFormTurnsEverythingOffButHelp) {
    CrearDeclarante(u"A"_s, u"B"_s);
    Marco();
    Deshabilitar_menu();
    EXPECT_FALSE(Menu(u"mnuDeclarante"_s).isEnabled());
    EXPECT_FALSE(Menu(u"mnuUtil"_s).isEnabled());
    EXPECT_TRUE(Menu(u"mnuayu"_s).isEnabled());
    for (const QString& clave : {u"Nueva"_s, u"Abrir"_s, u"Eliminar"_s, u"Salir"_s}) {
        EXPECT_FALSE(Boton(clave).isEnabled());
    }
    EXPECT_TRUE(Boton(u"Ayuda"_s).isEnabled());
    EXPECT_FALSE(Entrada(u"d1"_s).isVisible());
    Habilitar_menu();
    EXPECT_TRUE(Menu(u"mnuDeclarante"_s).isEnabled());
    EXPECT_TRUE(Menu(u"mnuUtil"_s).isEnabled());
    EXPECT_TRUE(Boton(u"Nueva"_s).isEnabled());
    EXPECT_TRUE(Boton(u"Salir"_s).isEnabled());
    EXPECT_TRUE(Entrada(u"d1"_s).isVisible());
}

TEST_F(MDIZTTest, WhatIsEnabledBeforeTheDeclarantsAreReadStaysSoWhenTheStoreIsBroken) {
    CrearDeclarante(u"A"_s, u"B"_s);
    Marco();
    Deshabilitar_menu();
    CerrarAlmacenes();
    EscribirFichero(Entorno().mdbmod, QByteArray(4096, 'x'));
    EXPECT_NE(NumeroDelError([] { Habilitar_menu(); }), 0);
    EXPECT_TRUE(Menu(u"mnuDeclarante"_s).isEnabled());
    EXPECT_TRUE(Menu(u"mnuUtil"_s).isEnabled());
    EXPECT_TRUE(Boton(u"Salir"_s).isEnabled());
    EXPECT_FALSE(Boton(u"Nueva"_s).isEnabled());
    EXPECT_FALSE(Boton(u"Abrir"_s).isEnabled());
    EXPECT_FALSE(Entrada(u"d1"_s).isVisible());
}

TEST_F(MDIZTTest, WithoutDeclarantsLeftTheRecentEntriesStayAsTheyWere) {
    qint32 clave = CrearDeclarante(u"A"_s, u"B"_s);
    Marco();
    ASSERT_TRUE(Entrada(u"d1"_s).isVisible());
    svrZELT::cZTDeclarante servidor;
    servidor.mdbmod = Entorno().mdbmod;
    servidor.EliminarDeclarante(clave);
    Habilitar_menu();
    EXPECT_FALSE(Entrada(u"mnuAbrDec"_s).isEnabled());
    EXPECT_TRUE(Entrada(u"d1"_s).isVisible());
    EXPECT_EQ(Entrada(u"d1"_s).text(), u"A - B"_s);
    EXPECT_TRUE(Boton(u"Nueva"_s).isEnabled());
}

TEST_F(MDIZTTest, ANewDeclarantStartsEmptyFromTheMenu) {
    Marco();
    oDeclarante().Nombre = u"OTRO"_s;
    Entrada(u"mnuNuedec"_s).trigger();
    EXPECT_EQ(oDeclarante().Modo, 2);
    EXPECT_EQ(oDeclarante().Nombre, QString());
    EXPECT_EQ(oDeclarante().Procedencia, 0);
    EXPECT_TRUE(Formularios::Visible(u"frmZTDeclarante"_s));
    EXPECT_EQ(pantalla.punteros, (std::vector{Puntero::Espera, Puntero::Normal}));
    EXPECT_EQ(pantalla.cesiones, 1);
}

TEST_F(MDIZTTest, OpeningShowsTheListAlsoForASingleDeclarant) {
    CrearDeclarante(u"A"_s, u"B"_s);
    Marco();
    oListaDeclarantes().Modo = 1;
    Entrada(u"mnuAbrDec"_s).trigger();
    EXPECT_TRUE(Formularios::Visible(u"frmZTListaDeclarantes"_s));
    EXPECT_EQ(oListaDeclarantes().Modo, 0);
    EXPECT_EQ(oListaDeclarantes().vBufferDeclarantes.UltimaFila(), 1);
}

TEST_F(MDIZTTest, DeletingShowsTheListInItsOtherMode) {
    CrearDeclarante(u"A"_s, u"B"_s);
    Marco();
    Entrada(u"mnuEliDec"_s).trigger();
    EXPECT_TRUE(Formularios::Visible(u"frmZTListaDeclarantes"_s));
    EXPECT_EQ(oListaDeclarantes().Modo, 1);
}

TEST_F(MDIZTTest, AFailureOfOpenAndDeleteIsShownUnderTheFixedNames) {
    Marco();
    Entrada(u"mnuAbrDec"_s).setEnabled(true);
    Entrada(u"mnuEliDec"_s).setEnabled(true);
    Entrada(u"mnuAbrDec"_s).trigger();
    Entrada(u"mnuEliDec"_s).trigger();
    ASSERT_EQ(pantalla.errores.size(), 2U);
    EXPECT_EQ(pantalla.errores[0].evento, u"MDIZT.mnuAbrDec_Click"_s);
    EXPECT_EQ(pantalla.errores[1].evento, u"MDIZT.mnuEliminarD_Click"_s);
    for (const auto& error : pantalla.errores) {
        EXPECT_EQ(error.formulario, u"MDIZT"_s);
    }
    EXPECT_EQ(terminado, -1);
}

TEST_F(MDIZTTest, ARecentEntryOpensItsDeclarant) {
    CrearDeclarante(u"A1"_s, u"UNO"_s);
    const qint32 dos = CrearDeclarante(u"A2"_s, u"DOS"_s);
    Marco();
    Entrada(u"d1"_s).trigger();
    EXPECT_EQ(oDeclarante().CSDE, dos);
    EXPECT_EQ(oDeclarante().Modo, 0);
    EXPECT_EQ(oDeclarante().Nombre, u"DOS"_s);
    EXPECT_TRUE(Formularios::Visible(u"frmZTListaDeclaraciones"_s));
    EXPECT_EQ(pantalla.cesiones, 1);
}

TEST_F(MDIZTTest, ToolButtonsRunTheirCommandsByMouse) {
    CrearDeclarante(u"A"_s, u"B"_s);
    Marco();
    QTest::mouseClick(&Boton(u"Nueva"_s), Qt::LeftButton);
    EXPECT_TRUE(Formularios::Visible(u"frmZTDeclarante"_s));
    QTest::mouseClick(&Boton(u"Abrir"_s), Qt::LeftButton);
    EXPECT_EQ(oListaDeclarantes().Modo, 0);
    EXPECT_TRUE(Formularios::Visible(u"frmZTListaDeclarantes"_s));
    QTest::mouseClick(&Boton(u"Eliminar"_s), Qt::LeftButton);
    EXPECT_EQ(oListaDeclarantes().Modo, 1);
    QTest::mouseClick(&Boton(u"Salir"_s), Qt::LeftButton);
    EXPECT_EQ(terminado, 0);
}

TEST_F(MDIZTTest, HelpShowsTheStartTopicOfTheLanguageFromTheMenuAndFromTheToolBar) {
    CrearTema(u"cap.htm"_s);
    CrearTema(u"kap.htm"_s);
    Marco();
    for (const auto& [offset, tema] : {std::pair{qint16{0}, u"cap.htm"_s}, {qint16{1000}, u"kap.htm"_s}}) {
        Entorno().OffsetIdioma = offset;
        Entrada(u"mnucontind"_s).trigger();
        EXPECT_EQ(TemaMostrado(), tema);
        QTest::mouseClick(&Boton(u"Ayuda"_s), Qt::LeftButton);
        EXPECT_EQ(TemaMostrado(), tema);
    }
}

TEST_F(MDIZTTest, MenusWorkByAccessKeyAndArrows) {
    MDIZT& marco = Marco();
    marco.activateWindow();
    ASSERT_TRUE(EsperarActiva(&marco));
    QTest::keyClick(&marco, Qt::Key_L, Qt::AltModifier);
    ASSERT_TRUE(QTest::qWaitFor([] { return Menu(u"mnuDeclarante"_s).isVisible(); }));
    QTest::keyClick(&Menu(u"mnuDeclarante"_s), Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([] { return Formularios::Visible(u"frmZTDeclarante"_s); }));
}

TEST_F(MDIZTTest, TheLanguageIsAskedOnceAtTheFirstActivationOfAFreshInstallation) {
    oActOnline().ActOnline = -1;
    int veces = 0;
    CuandoAparezca(u"frmZTIdioma"_s, [&veces](QWidget& idioma) {
        ++veces;
        EXPECT_FALSE(Menu(u"mnuDeclarante"_s).isEnabled());
        QTest::mouseClick(idioma.findChild<QAbstractButton*>(u"cmdEuskera"_s), Qt::LeftButton);
    });
    Marco();
    EXPECT_EQ(veces, 1);
    EXPECT_EQ(Menu(u"mnuDeclarante"_s).title(), u"&Aitortzailea"_s);
    EXPECT_TRUE(Menu(u"mnuDeclarante"_s).isEnabled());
    EXPECT_GE(oActOnline().ActOnline, 0);
    ElFormulario<MDIZT>().Form_Activate();
    EXPECT_FALSE(Formularios::Cargado(u"frmZTIdioma"_s));
}

TEST_F(MDIZTTest, OnLaterRunsTheLanguageIsNotAsked) {
    Marco();
    EXPECT_FALSE(Formularios::Cargado(u"frmZTIdioma"_s));
}

TEST_F(MDIZTTest, UnloadingTheFrameUnloadsAllOtherFormsAndEndsTheProcessWithoutAQuestion) {
    MDIZT& marco = Marco();
    Formularios::Mostrar(u"frmZTDeclarante"_s);
    marco.close();
    EXPECT_EQ(terminado, 0);
    EXPECT_TRUE(Formularios::Cargados().isEmpty());
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(MDIZTTest, TheEntryToLeaveEndsTheProcess) {
    Marco();
    Entrada(u"mnuSalir"_s).trigger();
    EXPECT_EQ(terminado, 0);
}

TEST_F(MDIZTTest, TheAboutBoxIsModal) {
    Marco();
    bool visto = false;
    CuandoAparezca(u"frmZTAbout"_s, [&visto](QWidget& acerca) {
        visto = true;
        EXPECT_TRUE(acerca.isModal());
        QTest::keyClick(acerca.findChild<QAbstractButton*>(u"cmdAceptar"_s), Qt::Key_Return);
    });
    Entrada(u"mnuacerca"_s).trigger();
    EXPECT_TRUE(visto);
}
