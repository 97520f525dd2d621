#include "app/AtenderDano.h"

#include <QMenu>
#include <QTest>

#include "app/MDIZT.h"
#include "app/Main.h"
#include "core/copies/CopiasAutomaticas.h"
#include "core/run/ProcedimientoInformado.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "core/store/Almacen.h"
#include "forms/runtime/Eventos.h"
#include "tests/support/CopiasDePrueba.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

/// The main window with the list of declarants, over a store of two; the copy is in Euskera and has one.
class AtenderDanoTest : public PruebaDeFormularios {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        RegistrarFormularios();
        Entorno().Atender = AtenderDano;
        Guardar(u"11111111H"_s);
        PonerIdioma(u"E"_s);
        copia = HacerCopiaAutomatica(AbrirAlmacen(ClaseAlmacen::Usuario, Entorno().mdbmod)->Base(),
                                     Entorno().mdbmod, Ocasion::Diaria, canal.ahora);
        PonerIdioma(u"C"_s);
        Guardar(u"22222222J"_s);
        Formularios::Mostrar(Forma::MDIZT);
        Entrada(u"mnuAbrDec"_s).trigger();
        ASSERT_TRUE(Formularios::Visible(Forma::ListaDeclarantes));
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
    static QAction& Entrada(const QString& nombre) {
        return *ElFormulario<MDIZT>().findChild<QAction*>(nombre);
    }
    /// What a server raises over a damaged page of the user's store.
    [[noreturn]] static void Danar() {
        throw ErrorZT(NumError::AlmacenDanado, u"El fichero de datos está dañado: "_s +
                                                   QDir::toNativeSeparators(Entorno().mdbmod) + u'.');
    }
    void AceptarLaCopia() {
        canal.alPedirVuelta = [this](TareaDeVuelta& tarea) {
            EXPECT_FALSE(tarea.Volver(copia, [](int) {}));
            return true;
        };
    }
    void EsperarNingunError() const {
        EXPECT_TRUE(pantalla.errores.empty());
        EXPECT_TRUE(pantalla.plataforma.empty());
    }

    CopiasDePrueba canal;
    QString copia;
};

}  // namespace

TEST_F(AtenderDanoTest, DamageInUseOffersTheCopiesInThePlaceOfTheErrorWhicheverWayItWouldBeShown) {
    const std::vector<std::function<void()>> maneras{
        [] { Evento([] { Danar(); }); }, [] { EventoConTrampa(u"f"_s, u"e"_s, [] { Danar(); }); },
        [] { (void)ProcedimientoInformado(u"o"_s, u"p"_s, []() -> int { Danar(); }); }};
    AceptarLaCopia();
    for (const auto& manera : maneras) {
        canal.rechazos.clear();
        manera();
        ASSERT_EQ(canal.rechazos.size(), 1U);
        EXPECT_EQ(canal.rechazos.front().motivo, MotivoDeCopia::Danado);
        EXPECT_EQ(terminado, -1);
        EsperarNingunError();
    }
}

TEST_F(AtenderDanoTest, AfterGoingBackTheFormsAreUnloadedAndTheMenusAreThoseOfTheCopy) {
    AceptarLaCopia();
    Evento([] { Danar(); });
    EXPECT_EQ(Entorno().OffsetIdioma, 1000);
    ASSERT_TRUE(QTest::qWaitFor([] { return !Formularios::Cargado(Forma::ListaDeclarantes); }));
    EXPECT_EQ(Formularios::Cargados(), QStringList(Forma::MDIZT.toString()));
    EXPECT_EQ(ElFormulario<MDIZT>().findChild<QMenu*>(u"mnuUtil"_s)->title(), u"Aukerak"_s);
    EXPECT_TRUE(Entrada(u"mnuNuedec"_s).isEnabled());
    EXPECT_EQ(ExisteDec().UltimaFila(), 1);
    EXPECT_FALSE(Entrada(u"d2"_s).isVisible());
}

TEST_F(AtenderDanoTest, WhoDoesNotGoBackEndsTheProgram) {
    EventoConTrampa(u"f"_s, u"e"_s, [] { Danar(); });
    EXPECT_EQ(canal.rechazos.size(), 1U);
    EXPECT_EQ(terminado, 0);
    EsperarNingunError();
}

TEST_F(AtenderDanoTest, OtherFailuresAreShownAsAlways) {
    EventoConTrampa(u"f"_s, u"e"_s, [] { throw ErrorZT(NumError::AlmacenOcupado); });
    EventoConTrampa(u"f"_s, u"e"_s,
                    [] { throw ErrorZT(NumError::AlmacenDanado, u"de "_s + Entorno().mdblec); });
    EXPECT_EQ(pantalla.errores.size(), 2U);
    EXPECT_TRUE(canal.rechazos.empty());
}

TEST_F(AtenderDanoTest, DamageThatShowsDuringTheOfferIsShownAndOffersNothingMore) {
    canal.alPedirVuelta = [](TareaDeVuelta&) {
        EventoConTrampa(u"f"_s, u"e"_s, [] { Danar(); });
        return false;
    };
    EventoConTrampa(u"f"_s, u"e"_s, [] { Danar(); });
    EXPECT_EQ(canal.rechazos.size(), 1U);
    EXPECT_EQ(pantalla.errores.size(), 1U);
}

TEST_F(AtenderDanoTest, WithoutAMainWindowTheFailureIsShown) {
    Formularios::Descargar(Forma::MDIZT);
    terminado = -1;
    EXPECT_FALSE(AtenderDano(ErrorZT(NumError::AlmacenDanado, Entorno().mdbmod)));
    EXPECT_TRUE(canal.rechazos.empty());
}
