#include "forms/copies/frmZTRestaurar.h"

#include "core/run/CopiasDeSeguridad.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "tests/support/PruebaDeDialogosDeCopia.h"

using namespace Qt::StringLiterals;

namespace {

class frmZTRestaurarTest : public PruebaDeDialogosDeCopia {
  protected:
    /// Makes a backup of a store in Euskera, and goes on in Castellano.
    void SetUp() override {
        PruebaDeDialogosDeCopia::SetUp();
        PonerIdioma(u"E"_s);
        AlAbrirse(u"frmZTCopia", [](QWidget& v) { Pulsar(v, "cmdAceptar"); });
        CrearCopiaDeSeguridad(0);
        PonerIdioma(u"C"_s);
        pantalla.mensajes.clear();
    }
    static void PonerIdioma(const QString& idioma) {
        svrZELT::cZTDatosGeneral servidor;
        servidor.mdbmod = Entorno().mdbmod;
        servidor.ModificarIdioma(idioma);
    }
    static QString Idioma() {
        svrZELT::cZTDatosGeneral servidor;
        servidor.mdbmod = Entorno().mdbmod;
        return servidor.ObtenerIdioma();
    }
    template <class F>
    bool Pedir(F accion) {
        AlAbrirse(frmZTRestaurar::kNombre, accion);
        return RestaurarCopiaDeSeguridad(0);
    }
};

}  // namespace

TEST_F(frmZTRestaurarTest, ItOpensWithTheSuggestedCopyAndWhatItHolds) {
    EXPECT_FALSE(Pedir([this](QWidget& v) {
        EXPECT_EQ(v.windowTitle(), u"Restaurar copia de seguridad"_s);
        EXPECT_EQ(TextoDe(v, "txtCarpeta"), QDir::toNativeSeparators(copias()));
        EXPECT_EQ(TextoDe(v, "txtNombre"), u"ZELTMod_bak.mdb"_s);
        EXPECT_EQ(TextoDe(v, "lblFecha"), u"04/07/2007"_s);
        EXPECT_EQ(TextoDe(v, "lblDeclarantes"), u"0"_s);
        EXPECT_EQ(TextoDe(v, "lblDeclaraciones"), u"0"_s);
        EXPECT_EQ(TextoDe(v, "lblEstado"), QString());
        QTest::keyClick(&v, Qt::Key_Escape);
    }));
    EXPECT_EQ(Idioma(), u"C"_s);
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(frmZTRestaurarTest, TheUserIsAskedWithTheSummaryAndARestoreIsToldAndTrue) {
    EXPECT_TRUE(Pedir([this](QWidget& v) {
        pantalla.respuesta = kRespuestaCancelar;
        Pulsar(v, "cmdAceptar");
        EXPECT_FALSE(pantalla.mensajes.front().unBoton);
        EXPECT_TRUE(UnicoMensaje().startsWith(
            QDir::toNativeSeparators(copia()) +
            u"\n\nContenido de la copia: declarantes, 0; declaraciones, 0; fecha, 04/07/2007."_s));
        EXPECT_EQ(Idioma(), u"C"_s);
        pantalla.respuesta = kRespuestaAceptar;
        Pulsar(v, "cmdAceptar");
    }));
    EXPECT_EQ(Idioma(), u"E"_s);
    ASSERT_EQ(pantalla.mensajes.size(), 2U);
    EXPECT_EQ(pantalla.mensajes.back().texto,
              u"Se han restaurado los datos de la copia.\n\n"_s + QDir::toNativeSeparators(copia()));
}

TEST_F(frmZTRestaurarTest, AQuestionThatIsClosedInAnotherWayIsANo) {
    Entorno().RespuestaMensaje = kRespuestaAceptar;
    RegistrarFormularios();
    EXPECT_FALSE(Pedir([this](QWidget& v) {
        pantalla.respuesta = 0;
        Pulsar(v, "cmdAceptar");
        pantalla.mensajes.clear();
        Pulsar(v, "cmdCancelar");
    }));
    EXPECT_EQ(Idioma(), u"C"_s);
}

TEST_F(frmZTRestaurarTest, AFileIsReadWhenTheFocusLeavesItsBoxesAndWhenEnterIsPressed) {
    EscribirFichero(copias() + u"/texto.mdb"_s, "esto no es una copia");
    EscribirFichero(copias() + u"/vacio.mdb"_s, {});
    EXPECT_FALSE(Pedir([](QWidget& v) {
        Escribir(v, "txtNombre", u"texto"_s);
        EXPECT_EQ(TextoDe(v, "lblDeclarantes"), u"0"_s) << "not while it is being typed";
        QTest::keyClick(v.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(TextoDe(v, "lblEstado"), u"El fichero no es un fichero de datos de este programa."_s);
        EXPECT_EQ(TextoDe(v, "lblDeclarantes"), QString());
        EXPECT_EQ(TextoDe(v, "lblFecha"), QString());
        Escribir(v, "txtNombre", u"vacio.mdb"_s);
        QTest::keyClick(v.focusWidget(), Qt::Key_Return);
        EXPECT_EQ(TextoDe(v, "lblEstado"), u"El fichero está vacío."_s);
        Escribir(v, "txtNombre", u"ZELTMod_bak"_s);
        QTest::keyClick(v.focusWidget(), Qt::Key_Return);
        EXPECT_EQ(TextoDe(v, "lblEstado"), QString());
        EXPECT_EQ(TextoDe(v, "lblDeclarantes"), u"0"_s);
        QTest::keyClick(&v, Qt::Key_Escape);
    }));
}

TEST_F(frmZTRestaurarTest, ARefusedFileIsToldAndTheStoreStays) {
    EscribirFichero(copia(), "esto no es una copia");
    EXPECT_FALSE(Pedir([this](QWidget& v) {
        Pulsar(v, "cmdAceptar");
        EXPECT_TRUE(pantalla.mensajes.front().unBoton);
        EXPECT_EQ(UnicoMensaje(), u"No se ha restaurado la copia. Los datos siguen como estaban.\n\n"_s +
                                      QDir::toNativeSeparators(copia()) +
                                      u"\n\nEl fichero no es un fichero de datos de este programa."_s);
        Pulsar(v, "cmdCancelar");
    }));
    EXPECT_EQ(Idioma(), u"C"_s);
}

TEST_F(frmZTRestaurarTest, ARestoreThatFailsIsToldAndTheFormStays) {
    EscribirFichero(copias() + u"/auto"_s, "no es una carpeta");
    EXPECT_FALSE(Pedir([this](QWidget& v) {
        Pulsar(v, "cmdAceptar");
        ASSERT_EQ(pantalla.mensajes.size(), 2U);
        EXPECT_TRUE(pantalla.mensajes.back().texto.startsWith(u"No se ha restaurado la copia."_s));
        Pulsar(v, "cmdCancelar");
    }));
    EXPECT_EQ(Idioma(), u"C"_s);
}

TEST_F(frmZTRestaurarTest, AFileFromTheFileDialogIsReadAtOnce) {
    QDir().mkpath(carpeta.filePath(u"otra"_s));
    ASSERT_TRUE(QFile::copy(copia(), carpeta.filePath(u"otra/una.mdb"_s)));
    EXPECT_FALSE(Pedir([this](QWidget& v) {
        EscribirFichero(copia(), {});
        ElegirEnElDialogo(v, carpeta.filePath(u"otra/una.mdb"_s),
                          [](const QFileDialog& dialogo, const QString& nombre) {
                              EXPECT_EQ(dialogo.acceptMode(), QFileDialog::AcceptOpen);
                              EXPECT_EQ(dialogo.nameFilters(), QStringList(u"archivos mdb (*.mdb mdb)"_s));
                              EXPECT_EQ(nombre, u"ZELTMod_bak.mdb"_s);
                          });
        EXPECT_EQ(TextoDe(v, "txtNombre"), u"una.mdb"_s);
        EXPECT_EQ(TextoDe(v, "lblEstado"), QString());
        EXPECT_EQ(TextoDe(v, "lblDeclarantes"), u"0"_s);
        Pulsar(v, "cmdCancelar");
    }));
}
