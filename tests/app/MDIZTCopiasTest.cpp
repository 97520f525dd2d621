// The commands of the main window that back the user's store up and bring it back.

#include <QMenu>

#include "app/MDIZT.h"
#include "app/Main.h"
#include "core/online/cZTActOnline.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "tests/support/CopiasDePrueba.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

/// The copy is of a store in Euskera without declarants; the store has got one since, in Castellano.
class MDIZTCopiasTest : public PruebaDeFormularios {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        RegistrarFormularios();
        canal.alPedirCopia = [](TareaDeCopia& tarea) {
            const auto destino = tarea.Elegir(tarea.Carpeta(), tarea.Nombre());
            EXPECT_FALSE(tarea.Copiar(destino.ruta, [](int) {}));
        };
        PonerIdioma(u"C"_s);
        InicializarEntorno();
        oActOnline().ActOnline = 0;
    }
    /// Backs up as the user does, from the menu.
    void CopiarEnEuskeraSinDeclarantes() {
        PonerIdioma(u"E"_s);
        Formularios::Mostrar(u"MDIZT"_s);
        Entrada(u"mnuBackup"_s).trigger();
        PonerIdioma(u"C"_s);
        CrearDeclarante(u"11111111H"_s, u"UNO"_s);
        ElFormulario<MDIZT>().HabilitarMenu();
    }
    static void CrearDeclarante(const QString& nif, const QString& nombre) {
        svrZELT::cZTDeclarante servidor;
        servidor.mdbmod = Entorno().mdbmod;
        (void)servidor.GuardarDeclarante(RegistroDeDeclarante(nif, nombre));
    }
    void AceptarRestauracion() {
        canal.alPedirRestauracion = [](TareaDeRestauracion& tarea) {
            const auto examen = tarea.Examinar(tarea.Carpeta(), tarea.Nombre());
            ASSERT_FALSE(examen.fallo);
            EXPECT_FALSE(tarea.Restaurar(examen.resumen.ruta, [](int) {}));
        };
    }
    static void PonerIdioma(const QString& idioma) {
        svrZELT::cZTDatosGeneral servidor;
        servidor.mdbmod = Entorno().mdbmod;
        servidor.ModificarIdioma(idioma);
    }
    static QAction& Entrada(const QString& nombre) {
        return *ElFormulario<MDIZT>().findChild<QAction*>(nombre);
    }
    static QString TituloDeOpciones() {
        return ElFormulario<MDIZT>().findChild<QMenu*>(u"mnuUtil"_s)->title();
    }

    CopiasDePrueba canal;
};

}  // namespace

TEST_F(MDIZTCopiasTest, ABackupIsMadeFromTheMenuAndLeavesTheScreenAsItIs) {
    CopiarEnEuskeraSinDeclarantes();
    EXPECT_TRUE(QFile::exists(carpeta.filePath(u"backups/ZELTMod_bak.mdb"_s)));
    EXPECT_EQ(TituloDeOpciones(), u"Utilidades"_s);
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(MDIZTCopiasTest, GivingUpTheRestoreChangesNothingOnTheScreen) {
    CopiarEnEuskeraSinDeclarantes();
    int traspasos = 0;
    Entorno().Migrar = [&] {
        ++traspasos;
        return false;
    };
    PonerIdioma(u"E"_s);
    Entrada(u"mnuRestore"_s).trigger();
    EXPECT_EQ(traspasos, 0);
    EXPECT_EQ(TituloDeOpciones(), u"Utilidades"_s);
    EXPECT_TRUE(Entrada(u"mnuAbrDec"_s).isEnabled());
    EXPECT_TRUE(Entrada(u"d1"_s).isVisible());
}

TEST_F(MDIZTCopiasTest, AfterARestoreTheMenusHaveTheLanguageAndTheDeclarantsOfTheCopy) {
    CopiarEnEuskeraSinDeclarantes();
    AceptarRestauracion();
    EXPECT_TRUE(Entrada(u"mnuAbrDec"_s).isEnabled());
    Entrada(u"mnuRestore"_s).trigger();
    EXPECT_EQ(TituloDeOpciones(), u"Aukerak"_s);
    EXPECT_EQ(Entorno().OffsetIdioma, 1000);
    EXPECT_FALSE(Entrada(u"mnuAbrDec"_s).isEnabled());
    EXPECT_FALSE(Entrada(u"mnuEliDec"_s).isEnabled());
    EXPECT_FALSE(Entrada(u"mnuExport"_s).isEnabled());
    EXPECT_TRUE(Entrada(u"mnuRestore"_s).isEnabled());
}

TEST_F(MDIZTCopiasTest, AfterARestoreAnEntryOfSomebodyWhoIsNotInTheCopySaysSoAndOpensNothing) {
    CrearDeclarante(u"11111111H"_s, u"UNO"_s);
    Formularios::Mostrar(u"MDIZT"_s);
    Entrada(u"mnuBackup"_s).trigger();
    CrearDeclarante(u"22222222J"_s, u"DOS"_s);
    ElFormulario<MDIZT>().HabilitarMenu();
    ASSERT_EQ(Entrada(u"d1"_s).text(), u"22222222J - DOS"_s);
    ASSERT_TRUE(Entrada(u"d2"_s).isVisible());
    AceptarRestauracion();
    Entrada(u"mnuRestore"_s).trigger();
    EXPECT_EQ(Entrada(u"d1"_s).text(), u"11111111H - UNO"_s);
    EXPECT_TRUE(Entrada(u"d1"_s).isVisible());
    // What `Habilitar_menu` does not write over stays.
    ASSERT_TRUE(Entrada(u"d2"_s).isVisible());
    EXPECT_EQ(Entrada(u"d2"_s).text(), u"11111111H - UNO"_s);

    svrZELT::cZTDeclarante servidor;
    servidor.mdbmod = Entorno().mdbmod;
    servidor.EliminarDeclarante(servidor.NifRepetido(u"11111111H"_s));
    Entrada(u"d1"_s).trigger();
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_TRUE(pantalla.mensajes.front().texto.startsWith(u"El declarante de esta entrada ya no está"_s));
    EXPECT_FALSE(Formularios::Cargado(Forma::ListaDeclaraciones));
}

TEST_F(MDIZTCopiasTest, TheMigrationComesFirstAndItsTrueEndsTheProcessAtOnce) {
    CopiarEnEuskeraSinDeclarantes();
    AceptarRestauracion();
    Entorno().Migrar = [] {
        EXPECT_EQ(Entorno().OffsetIdioma, 0) << "the environment is loaded after it";
        return true;
    };
    Entrada(u"mnuRestore"_s).trigger();
    EXPECT_EQ(terminado, 0);
    EXPECT_EQ(TituloDeOpciones(), u"Utilidades"_s);
    EXPECT_TRUE(pantalla.plataforma.empty());
}

TEST_F(MDIZTCopiasTest, AFailureOfTheMigrationHasNoTrapAndEndsTheProcess) {
    CopiarEnEuskeraSinDeclarantes();
    AceptarRestauracion();
    Entorno().Migrar = []() -> bool { throw ErrorZT(NumError::AlmacenOcupado); };
    Entrada(u"mnuRestore"_s).trigger();
    EXPECT_EQ(terminado, 1);
    ASSERT_EQ(pantalla.plataforma.size(), 1U);
    EXPECT_TRUE(pantalla.plataforma.front().contains(u"MDIZT.Traspaso\r\n"_s));
    EXPECT_TRUE(pantalla.errores.empty());
}

TEST_F(MDIZTCopiasTest, WithoutTheToolBothCommandsEndTheProcess) {
    Formularios::Mostrar(u"MDIZT"_s);
    FijarCopias(nullptr);
    for (const QString& nombre : {u"mnuBackup"_s, u"mnuRestore"_s}) {
        terminado = -1;
        Entrada(nombre).trigger();
        EXPECT_EQ(terminado, 1);
    }
    EXPECT_TRUE(pantalla.errores.empty());
}

TEST_F(MDIZTCopiasTest, TheFirstDataAreCopiedWhenTheProgramEndsAndNothingIsAsked) {
    Formularios::Mostrar(u"MDIZT"_s);
    CrearDeclarante(u"11111111H"_s, u"UNO"_s);
    const QDir automaticas(Entorno().CarpetaPrograma + u"/backups/auto"_s);
    const auto hechas = [&] { return automaticas.entryList({u"*-diaria.mdb"_s}, QDir::Files).size(); };
    ASSERT_EQ(hechas(), 1) << "the copy before the first change, without data";
    Formularios::Descargar(u"MDIZT"_s);
    EXPECT_EQ(hechas(), 2);
    EXPECT_EQ(terminado, 0);
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_TRUE(canal.avisos.empty());
}
