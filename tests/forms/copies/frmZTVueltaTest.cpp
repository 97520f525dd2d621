#include "forms/copies/frmZTVuelta.h"

#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "forms/widgets/ListaZT.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/PruebaDeDialogosDeCopia.h"

using namespace Qt::StringLiterals;

namespace {

/// A store with two automatic copies, of no declarant and of one, and a text in its place.
class frmZTVueltaTest : public PruebaDeDialogosDeCopia {
  protected:
    static constexpr auto kTexto = "esto no es un fichero de datos";

    void SetUp() override {
        PruebaDeDialogosDeCopia::SetUp();
        Guardar(u"11111111H"_s);
        PonerIdioma(u"C"_s);
        Entorno().Reloj = [] { return QDateTime(QDate(2007, 7, 5), QTime(10, 0, 0)); };
        Guardar(u"22222222J"_s);
        CerrarAlmacenes();
        EscribirFichero(Entorno().mdbmod, kTexto);
    }
    static void Guardar(const QString& nif) {
        svrZELT::cZTDeclarante servidor;
        servidor.mdbmod = Entorno().mdbmod;
        (void)servidor.GuardarDeclarante(RegistroDeDeclarante(nif, u"EMPRESA"_s));
    }
    static void PonerIdioma(const QString& idioma) {
        svrZELT::cZTDatosGeneral servidor;
        servidor.mdbmod = Entorno().mdbmod;
        servidor.ModificarIdioma(idioma);
    }
    template <class F>
    bool Traspasar(F accion) {
        AlAbrirse(frmZTVuelta::kNombre, accion);
        return Traspaso();
    }
    static int Declarantes() {
        svrZELT::cZTDeclarante servidor;
        servidor.mdbmod = Entorno().mdbmod;
        const Tabla declarantes = servidor.ObtenerDeclarantes();
        return declarantes.EsNula() ? 0 : declarantes.UltimaFila();
    }
};

}  // namespace

TEST_F(frmZTVueltaTest, ItTellsFileAndReasonAndOffersTheCopies) {
    EXPECT_TRUE(Traspasar([](QWidget& v) {
        EXPECT_EQ(v.windowTitle(), u"Fichero de datos rechazado"_s);
        EXPECT_EQ(TextoDe(v, "lblFichero"), QDir::toNativeSeparators(Entorno().mdbmod));
        EXPECT_EQ(TextoDe(v, "lblMotivo"), u"El fichero no es un fichero de datos de este programa."_s);
        const auto& lista = Control<ListaZT>(v, "lsvCopias");
        ASSERT_EQ(lista.Cuenta(), 2);
        EXPECT_EQ(lista.Texto(1), u"05/07/2007 10:00:00"_s);
        EXPECT_EQ(lista.Subitem(1, 1), u"1"_s);
        EXPECT_EQ(lista.Subitem(1, 2), u"0"_s);
        EXPECT_EQ(lista.Texto(2), u"04/07/2007 09:08:07"_s);
        EXPECT_EQ(lista.Subitem(2, 1), u"0"_s);
        EXPECT_EQ(lista.Seleccionado(), 1);
        EXPECT_EQ(v.focusWidget(), &lista);
        QTest::keyClick(&v, Qt::Key_Escape);
    }));
    EXPECT_EQ(terminado, 0);
    EXPECT_EQ(LeerFichero(Entorno().mdbmod), kTexto);
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_TRUE(pantalla.plataforma.empty());
}

TEST_F(frmZTVueltaTest, ClosingItEndsTheProgramToo) {
    EXPECT_TRUE(Traspasar([](QWidget& v) { v.close(); }));
    EXPECT_EQ(terminado, 0);
}

TEST_F(frmZTVueltaTest, TheChosenCopyIsGoneBackToByTheKeyboardAndTheStartGoesOn) {
    EXPECT_FALSE(Traspasar([](QWidget& v) {
        QTest::keyClick(v.focusWidget(), Qt::Key_Down);
        QTest::keyClick(&v, Qt::Key_V, Qt::AltModifier);
    }));
    EXPECT_EQ(terminado, -1);
    EXPECT_EQ(Declarantes(), 0);
    EXPECT_TRUE(UnicoMensaje().startsWith(u"Se ha vuelto a la copia."_s));
    EXPECT_EQ(LeerFichero(Entorno().mdbmod + u".1.rechazado"_s), kTexto);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
}

TEST_F(frmZTVueltaTest, ACopyThatIsNoLongerGoodIsToldAndAnotherOneCanBeChosen) {
    EXPECT_FALSE(Traspasar([this](QWidget& v) {
        const auto& lista = Control<ListaZT>(v, "lsvCopias");
        EscribirFichero(lista.Clave(1), {});
        Pulsar(v, "cmdVolver");
        EXPECT_TRUE(UnicoMensaje().endsWith(u"El fichero está vacío."_s));
        Control<ListaZT>(v, "lsvCopias").Seleccionar(2);
        Pulsar(v, "cmdVolver");
    }));
    EXPECT_EQ(Declarantes(), 0);
}

TEST_F(frmZTVueltaTest, ItSpeaksTheLanguageOfTheLatestCopy) {
    for (const QString& copia : QDir(copias() + u"/auto"_s).entryList({u"*.mdb"_s})) {
        const QString ruta = copias() + u"/auto/"_s + copia;
        QFile::remove(ruta + u".sha256"_s);
        svrZELT::cZTDatosGeneral servidor;
        servidor.mdbmod = ruta;
        servidor.ModificarIdioma(u"E"_s);
    }
    EXPECT_TRUE(Traspasar([](QWidget& v) {
        EXPECT_EQ(v.windowTitle(), u"Baztertutako datu-fitxategia"_s);
        EXPECT_EQ(Control<ListaZT>(v, "lsvCopias").Texto(1), u"2007/07/05 10:00:00"_s);
        QTest::keyClick(&v, Qt::Key_A, Qt::AltModifier);
    }));
}

TEST_F(frmZTVueltaTest, WhereTheFileIsMissingTheOtherWayIsToStartWithoutData) {
    ASSERT_TRUE(QFile::remove(Entorno().mdbmod));
    EXPECT_FALSE(Traspasar([](QWidget& v) {
        EXPECT_EQ(v.windowTitle(), u"Fichero de datos no encontrado"_s);
        EXPECT_EQ(TextoDe(v, "lblMotivo"), u"El fichero no existe."_s);
        EXPECT_EQ(Control<ListaZT>(v, "lsvCopias").Cuenta(), 2);
        QTest::keyClick(&v, Qt::Key_E, Qt::AltModifier);
    }));
    EXPECT_EQ(terminado, -1);
    EXPECT_EQ(Declarantes(), 0);
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(frmZTVueltaTest, AMissingFileIsReplacedByTheChosenCopy) {
    ASSERT_TRUE(QFile::remove(Entorno().mdbmod));
    EXPECT_FALSE(Traspasar([](QWidget& v) { Pulsar(v, "cmdVolver"); }));
    EXPECT_EQ(Declarantes(), 1);
    EXPECT_EQ(UnicoMensaje(), u"Se ha vuelto a la copia."_s);
}

TEST_F(frmZTVueltaTest, WithoutCopiesThereIsOnlyTheEnd) {
    ASSERT_TRUE(QDir(copias()).removeRecursively());
    EXPECT_TRUE(Traspasar([](QWidget& v) {
        EXPECT_FALSE(Control(v, "lsvCopias").isVisible());
        EXPECT_FALSE(Control(v, "cmdVolver").isVisible());
        EXPECT_EQ(v.focusWidget(), &Control(v, "cmdTerminar"));
        QTest::keyClick(v.focusWidget(), Qt::Key_Return);
    }));
}
