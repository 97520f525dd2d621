#include "forms/exchange/frmZTFicheroAExportar.h"

#include "app/TextosDeQt.h"
#include "core/exchange/cZTExportaciones.h"
#include "core/records/cZTDeclarante.h"
#include "core/run/Textos.h"
#include "tests/support/PruebaDeIntercambio.h"

using namespace Qt::StringLiterals;

namespace {

class frmZTFicheroAExportarTest : public PruebaDeIntercambio {
  protected:
    void SetUp() override {
        PruebaDeIntercambio::SetUp();
        for (const QString& nif : {u"12345678Z"_s, u"00000000T"_s}) {
            oExportaciones().vBufferDtes.emplace_back(Guardar(nif, u"UNO"_s));
            lineas += Linea(nif, u"UNO"_s);
        }
    }
    void AbrirFichero() { Abrir(frmZTFicheroAExportar::kNombre); }
    static bool Abierto() { return Formularios::Cargado(frmZTFicheroAExportar::kNombre.toString()); }
    /// What says whether the export can start, and whether it has come to its end.
    [[nodiscard]] bool AntesDeExportar() const {
        return SeVe(u"cmdAceptar"_s) && SeVe(u"picAceptar"_s) && SeVe(u"cmdCancelar"_s) &&
               SeVe(u"picCancelar"_s) && !SeVe(u"CmdContinuar"_s) && !SeVe(u"picContinuar"_s) &&
               !SeVe(u"shpFondo"_s);
    }
    [[nodiscard]] bool Exportado() const {
        return !SeVe(u"cmdAceptar"_s) && !SeVe(u"picAceptar"_s) && !SeVe(u"cmdCancelar"_s) &&
               !SeVe(u"picCancelar"_s) && SeVe(u"CmdContinuar"_s) && SeVe(u"picContinuar"_s) &&
               SeVe(u"shpFondo"_s) && SeVe(u"lblAviso"_s);
    }

    QByteArray lineas;
};

}  // namespace

TEST_F(frmZTFicheroAExportarTest, CaptionsAreInTheLanguageInForce) {
    for (const qint16 idioma : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = idioma;
        AbrirFichero();
        EXPECT_EQ(formulario->windowTitle(), TextoDeFila(171 + idioma));
        EXPECT_EQ(Control(u"fraFichero"_s).property("title").toString(), TextoDeFila(86 + idioma));
        for (const auto& [control, texto] : {std::pair{u"lblAviso"_s, 174},
                                             {u"cmdModificar"_s, 109},
                                             {u"cmdAceptar"_s, 28},
                                             {u"cmdCancelar"_s, 29},
                                             {u"CmdContinuar"_s, 111}}) {
            EXPECT_EQ(TextoDe(control), TextoDeFila(texto + idioma)) << control.toStdString();
        }
        Formularios::Descargar(frmZTFicheroAExportar::kNombre.toString());
    }
}

TEST_F(frmZTFicheroAExportarTest, ItStartsWithTheSuggestedFileReadyToExport) {
    AbrirFichero();
    EXPECT_EQ(TextoDe(u"lblFichero"_s), EnCarpeta(u"Declaran.txt"_s));
    EXPECT_TRUE(AntesDeExportar());
    EXPECT_FALSE(SeVe(u"lblAviso"_s));
    EXPECT_FALSE(MenusHabilitados());
    EXPECT_EQ(Foco(), u"cmdAceptar"_s);
}

TEST_F(frmZTFicheroAExportarTest, AcceptWritesTheFileAndFillsTheBar) {
    AbrirFichero();
    Pulsar(u"picAceptar"_s);
    EXPECT_EQ(LeerFichero(EnCarpeta(u"Declaran.txt"_s)), lineas);
    EXPECT_TRUE(Exportado());
    EXPECT_DOUBLE_EQ(BarraLlena(), 1.0);
    EXPECT_EQ(Foco(), u"CmdContinuar"_s);
}

TEST_F(frmZTFicheroAExportarTest, TheButtonToGoOnClosesAndReloadsTheDeclarantInHand) {
    AbrirFichero();
    oDeclarante().Modificado = true;
    Tecla(Qt::Key_Return);
    Tecla(Qt::Key_Return);
    EXPECT_FALSE(Abierto());
    EXPECT_TRUE(MenusHabilitados());
    EXPECT_FALSE(oDeclarante().Modificado);
}

TEST_F(frmZTFicheroAExportarTest, CancelLeavesWithoutWriting) {
    AbrirFichero();
    Tecla(Qt::Key_C, Qt::AltModifier);
    EXPECT_FALSE(Abierto());
    EXPECT_TRUE(MenusHabilitados());
    EXPECT_FALSE(QFile::exists(EnCarpeta(u"Declaran.txt"_s)));
}

TEST_F(frmZTFicheroAExportarTest, AFileThatExistsIsAskedForUnderTheCaptionOfTheForm) {
    EscribirFichero(EnCarpeta(u"Declaran.txt"_s), "antes");
    AbrirFichero();
    pantalla.respuesta = kRespuestaCancelar;
    Pulsar(u"cmdAceptar"_s);
    ASSERT_EQ(pantalla.mensajes.size(), 1U);
    EXPECT_EQ(pantalla.mensajes.front().titulo, Texto(171));
    EXPECT_EQ(LeerFichero(EnCarpeta(u"Declaran.txt"_s)), QByteArray("antes"));
    EXPECT_TRUE(AntesDeExportar());
    pantalla.respuesta = kRespuestaAceptar;
    Pulsar(u"cmdAceptar"_s);
    EXPECT_EQ(LeerFichero(EnCarpeta(u"Declaran.txt"_s)), lineas);
    EXPECT_TRUE(Exportado());
}

TEST_F(frmZTFicheroAExportarTest, InEuskeraAnExistingFileEndsInTheErrorDialogAndStays) {
    Entorno().OffsetIdioma = 1000;
    EscribirFichero(EnCarpeta(u"Declaran.txt"_s), "antes");
    AbrirFichero();
    Pulsar(u"cmdAceptar"_s);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmNotExportar.cmdAceptar_Click"_s);
    EXPECT_TRUE(pantalla.errores.front().descripcion.contains(u"1108"));
    EXPECT_EQ(LeerFichero(EnCarpeta(u"Declaran.txt"_s)), QByteArray("antes"));
    EXPECT_TRUE(AntesDeExportar());
    EXPECT_FALSE(SeVe(u"lblAviso"_s));
}

TEST_F(frmZTFicheroAExportarTest, AfterAFailureTheFormIsReadyForAnotherFile) {
    QDir().mkpath(EnCarpeta(u"Declaran.txt"_s));
    AbrirFichero();
    Pulsar(u"cmdAceptar"_s);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_TRUE(pantalla.errores.front().descripcion.contains(EnCarpeta(u"Declaran.txt"_s)));
    EXPECT_TRUE(AntesDeExportar());
}

TEST_F(frmZTFicheroAExportarTest, AFailureInMidFileGivesTheButtonsBack) {
    Registro largo = DeclaranteDePrueba(u"99999999R"_s);
    largo[6] = u"BIS"_s;
    svrZELT::cZTDeclarante servidor;
    servidor.mdbmod = Entorno().mdbmod;
    oExportaciones().vBufferDtes.emplace_back(servidor.GuardarDeclarante(largo));
    AbrirFichero();
    Pulsar(u"cmdAceptar"_s);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(LeerFichero(EnCarpeta(u"Declaran.txt"_s)), lineas);
    EXPECT_TRUE(AntesDeExportar());
    EXPECT_FALSE(SeVe(u"lblAviso"_s));
    Pulsar(u"cmdCancelar"_s);
    EXPECT_FALSE(Abierto());
}

TEST_F(frmZTFicheroAExportarTest, AnotherFileIsChosenInTheFileDialog) {
    AbrirFichero();
    ResponderConFichero(EnCarpeta(u"otro"_s));
    Tecla(Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(TextoDe(u"lblFichero"_s), EnCarpeta(u"otro.txt"_s));
    Pulsar(u"cmdAceptar"_s);
    EXPECT_EQ(LeerFichero(EnCarpeta(u"otro.txt"_s)), lineas);
}

TEST_F(frmZTFicheroAExportarTest, TheFileDialogStartsInTheFolderOfTheFileAndIsForWriting) {
    AbrirFichero();
    bool visto = false;
    CuandoSeExamine([&](QFileDialog& dialogo) {
        visto = true;
        EXPECT_EQ(dialogo.objectName(), u"Examinador"_s);
        EXPECT_EQ(dialogo.windowTitle(), u"Cambiar fichero de salida"_s);
        EXPECT_EQ(dialogo.directory().canonicalPath(), QDir(carpeta.path()).canonicalPath());
        EXPECT_EQ(dialogo.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialogo.defaultSuffix(), u"txt"_s);
        EXPECT_EQ(dialogo.findChild<QLineEdit*>(u"fileNameEdit"_s)->text(), u"Declaran.txt"_s);
        EXPECT_EQ(dialogo.nameFilters().constFirst(), u"*.txt"_s);
        EXPECT_TRUE(dialogo.nameFilters().constLast().startsWith(u"*.*"));
        dialogo.reject();
    });
    Pulsar(u"cmdModificar"_s);
    EXPECT_TRUE(visto);
    EXPECT_EQ(TextoDe(u"lblFichero"_s), EnCarpeta(u"Declaran.txt"_s));
}

TEST_F(frmZTFicheroAExportarTest, TheFileDialogSpeaksTheLanguageOfTheScreen) {
    TextosDeQt textos;
    QCoreApplication::installTranslator(&textos);
    Entorno().OffsetIdioma = 1000;
    AbrirFichero();
    QString etiqueta;
    CuandoSeExamine([&](QFileDialog& dialogo) {
        etiqueta = dialogo.findChild<QLabel*>(u"fileNameLabel"_s)->text();
        dialogo.reject();
    });
    Pulsar(u"cmdModificar"_s);
    QCoreApplication::removeTranslator(&textos);
    EXPECT_EQ(etiqueta, u"Fitxategiaren &izena:"_s);
}

TEST_F(frmZTFicheroAExportarTest, NoInputStartsASecondExportOrClosesTheFormUnderIt) {
    AbrirFichero();
    MolestarDuranteElTrabajo();
    formulario->findChild<QAbstractButton*>(u"cmdAceptar"_s)->click();
    EXPECT_TRUE(molestado);
    EXPECT_TRUE(Abierto());
    EXPECT_EQ(terminado, -1);
    EXPECT_TRUE(Exportado());
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_TRUE(pantalla.errores.empty());
    EXPECT_EQ(LeerFichero(EnCarpeta(u"Declaran.txt"_s)), lineas);
}

TEST_F(frmZTFicheroAExportarTest, PressesWithoutInputInMidRunDoNothing) {
    AbrirFichero();
    PulsarSinEntradaDuranteElTrabajo();
    formulario->findChild<QAbstractButton*>(u"cmdAceptar"_s)->click();
    EXPECT_TRUE(molestado);
    ASSERT_TRUE(Abierto());
    ASSERT_TRUE(EsperarBotonesSueltos());
    ASSERT_TRUE(Abierto());
    EXPECT_TRUE(Exportado());
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_EQ(LeerFichero(EnCarpeta(u"Declaran.txt"_s)), lineas);
}

TEST_F(frmZTFicheroAExportarTest, TheNoticeOfAnExportGoesWhenTheNextOneFails) {
    EscribirFichero(EnCarpeta(u"Declaran.txt"_s), "antes");
    AbrirFichero();
    pantalla.respuesta = kRespuestaCancelar;
    Pulsar(u"cmdAceptar"_s);
    EXPECT_TRUE(SeVe(u"lblAviso"_s));
    Entorno().OffsetIdioma = 1000;
    Pulsar(u"cmdAceptar"_s);
    EXPECT_EQ(pantalla.errores.size(), 1U);
    EXPECT_FALSE(SeVe(u"lblAviso"_s));
}

TEST_F(frmZTFicheroAExportarTest, TheWholePathIsTheToolTipOfTheFileAndTheBarHasAName) {
    AbrirFichero();
    EXPECT_EQ(Control(u"lblFichero"_s).toolTip(), EnCarpeta(u"Declaran.txt"_s));
    EXPECT_EQ(Control(u"shpFondo"_s).accessibleName(), u"Progreso"_s);
}
