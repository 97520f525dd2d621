#include "forms/runtime/Formularios.h"

#include <QCoreApplication>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWindow>

#include "forms/runtime/Eventos.h"
#include "forms/widgets/BotonZT.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class FormulariosTest : public PruebaDeFormularios {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        Diario().clear();
        RegistrarFormulario<frmTrabajo>();
        RegistrarFormulario<frmOtro>();
        RegistrarFormulario<frmModal>();
        RegistrarFormulario<frmPortada>();
        RegistrarFormulario<frmQueFalla>();
    }

    static QStringList& Diario() {
        static QStringList diario;
        return diario;
    }

    template <class Base>
    struct Anotador : Base {
        using Base::Base;
        void Form_Load() override { Diario() += this->Nombre() + u" load"_s; }
        void Form_Activate() override { Diario() += this->Nombre() + u" activate"_s; }
        void Form_Unload() override { Diario() += this->Nombre() + u" unload"_s; }
    };
    struct frmTrabajo : Anotador<FormularioTrabajo> {
        static constexpr QStringView kNombre = u"frmTrabajo";
        frmTrabajo() : Anotador(kNombre.toString()) {
            auto* disposicion = new QVBoxLayout(this);
            disposicion->addWidget(&boton);
            Conectar(*this, &boton, &QAbstractButton::clicked, [] { Diario() += u"click"_s; });
        }
        ~frmTrabajo() override { Diario() += u"deleted"_s; }
        BotonZT boton;
    };
    struct frmOtro : Anotador<FormularioTrabajo> {
        static constexpr QStringView kNombre = u"frmOtro";
        frmOtro() : Anotador(kNombre.toString()) {}
        void Form_Unload() override {
            Anotador::Form_Unload();
            Formularios::Mostrar(u"frmTrabajo"_s);
        }
    };
    struct frmModal : Anotador<FormularioModal> {
        static constexpr QStringView kNombre = u"frmModal";
        frmModal() : Anotador(kNombre.toString()) {
            auto* disposicion = new QVBoxLayout(this);
            disposicion->addWidget(&boton);
            Conectar(*this, &boton, &QAbstractButton::clicked, [] { Formularios::Descargar(u"frmModal"_s); });
        }
        QAbstractButton* BotonDeEscape() override { return &boton; }
        BotonZT boton;
    };
    struct frmPortada : Anotador<FormularioTrabajo> {
        static constexpr QStringView kNombre = u"frmPortada";
        frmPortada() : Anotador(kNombre.toString()) {}
        void Form_Load() override {
            show();
            Formularios::MostrarModal(u"frmModal"_s);
        }
    };
    struct frmQueFalla : FormularioTrabajo {
        static constexpr QStringView kNombre = u"frmQueFalla";
        frmQueFalla() : FormularioTrabajo(kNombre.toString()) {}
        void Form_Load() override { throw ErrorZT(NumError::Subindice); }
    };
};

}  // namespace

TEST_F(FormulariosTest, AFormIsMadeAndLoadedOnFirstUseAndExistsOnce) {
    EXPECT_FALSE(Formularios::Cargado(u"frmTrabajo"_s));
    Formulario& primero = Formularios::Obtener(u"frmTrabajo"_s);
    EXPECT_TRUE(Formularios::Cargado(u"frmTrabajo"_s));
    EXPECT_FALSE(Formularios::Visible(u"frmTrabajo"_s));
    Formularios::Mostrar(u"frmTrabajo"_s);
    EXPECT_EQ(&primero, &Formularios::Obtener(u"frmTrabajo"_s));
    EXPECT_TRUE(Formularios::Visible(u"frmTrabajo"_s));
    EXPECT_EQ(Diario(), QStringList({u"frmTrabajo load"_s, u"frmTrabajo activate"_s}));
    EXPECT_EQ(primero.Ventana().objectName(), u"frmTrabajo"_s);
}

TEST_F(FormulariosTest, AnUnknownNameRaises) {
    EXPECT_EQ(NumeroDelError([] { Formularios::Obtener(u"frmNada"_s); }), 424);
    EXPECT_FALSE(Formularios::Registrados().contains(u"frmNada"_s));
}

TEST_F(FormulariosTest, AFailureOfTheLoadClimbsAndTheFormIsGone) {
    EXPECT_EQ(NumeroDelError([] { Formularios::Mostrar(u"frmQueFalla"_s); }), 9);
    EXPECT_FALSE(Formularios::Cargado(u"frmQueFalla"_s));
}

TEST_F(FormulariosTest, UnloadRunsItsRuleAtOnceFreesTheNameAndDeletesTheWidgetLater) {
    Formularios::Mostrar(u"frmTrabajo"_s);
    Diario().clear();
    Formularios::Descargar(u"frmTrabajo"_s);
    EXPECT_EQ(Diario(), QStringList(u"frmTrabajo unload"_s));
    EXPECT_FALSE(Formularios::Cargado(u"frmTrabajo"_s));
    Formularios::Descargar(u"frmTrabajo"_s);
    EXPECT_EQ(Diario().size(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Diario().last(), u"deleted"_s);
}

TEST_F(FormulariosTest, AnUnloadedFormHearsNothing) {
    auto& formulario = ElFormulario<frmTrabajo>();
    Formularios::Mostrar(u"frmTrabajo"_s);
    formulario.boton.click();
    EXPECT_EQ(Diario().last(), u"click"_s);
    Formularios::Descargar(u"frmTrabajo"_s);
    Diario().clear();
    formulario.boton.click();
    EXPECT_TRUE(Diario().isEmpty());
}

TEST_F(FormulariosTest, TheUnloadRuleOfOneFormCanShowAnother) {
    Formularios::Mostrar(u"frmOtro"_s);
    Formularios::Descargar(u"frmOtro"_s);
    EXPECT_TRUE(Formularios::Visible(u"frmTrabajo"_s));
    EXPECT_EQ(Formularios::Activo(), u"frmTrabajo"_s);
}

TEST_F(FormulariosTest, UnloadingAllTakesASnapshotAndShowsNothingMeanwhile) {
    Formularios::Mostrar(u"frmOtro"_s);
    Formularios::Obtener(u"frmModal"_s);
    Formularios::DescargarTodos(u"frmModal"_s);
    EXPECT_EQ(Formularios::Cargados(), QStringList(u"frmModal"_s));
}

TEST_F(FormulariosTest, ShowingModallyReturnsWhenTheFormHasBeenUnloaded) {
    Formularios::Mostrar(u"frmTrabajo"_s);
    Diario().clear();
    CuandoAparezca(u"frmModal"_s, [](QWidget& modal) {
        EXPECT_TRUE(modal.isModal());
        QTest::keyClick(modal.findChild<QPushButton*>(), Qt::Key_Return);
    });
    Formularios::MostrarModal(u"frmModal"_s);
    EXPECT_FALSE(Formularios::Cargado(u"frmModal"_s));
    EXPECT_EQ(Diario(), QStringList({u"frmModal load"_s, u"frmModal activate"_s, u"frmModal unload"_s,
                                     u"frmTrabajo activate"_s}));
}

TEST_F(FormulariosTest, AModalFormStaysOverTheActiveOneOrOverTheOneThatIsSeenWhileItLoads) {
    for (const QString& nombre : {u"frmPortada"_s, u"frmTrabajo"_s}) {
        const QWindow* duena = nullptr;
        CuandoAparezca(u"frmModal"_s, [&duena](QWidget& modal) {
            duena = modal.windowHandle()->transientParent();
            modal.close();
        });
        Formularios::Mostrar(nombre);
        if (duena == nullptr) {
            Formularios::MostrarModal(u"frmModal"_s);
        }
        ASSERT_NE(duena, nullptr);
        EXPECT_EQ(duena, Formularios::Obtener(nombre).Ventana().windowHandle());
    }
}

TEST_F(FormulariosTest, EscapePressesTheCancelButtonOfAModalForm) {
    CuandoAparezca(u"frmModal"_s, [](QWidget& modal) { QTest::keyClick(&modal, Qt::Key_Escape); });
    Formularios::MostrarModal(u"frmModal"_s);
    EXPECT_FALSE(Formularios::Cargado(u"frmModal"_s));
}

TEST_F(FormulariosTest, TheCloseBoxOfAModalFormUnloadsIt) {
    CuandoAparezca(u"frmModal"_s, [](QWidget& modal) { modal.close(); });
    Formularios::MostrarModal(u"frmModal"_s);
    EXPECT_EQ(Diario().last(), u"frmModal unload"_s);
}

TEST_F(FormulariosTest, WorkingFormsAreSubWindowsOfTheFrameWithATitleAndNoCloseBox) {
    QMdiArea area;
    area.resize(800, 600);
    area.show();
    Formularios::FijarMarco(&area);
    Formularios::Mostrar(u"frmTrabajo"_s);
    auto* hija = qobject_cast<QMdiSubWindow*>(Formularios::Obtener(u"frmTrabajo"_s).Ventana().parentWidget());
    ASSERT_NE(hija, nullptr);
    EXPECT_TRUE(hija->windowFlags() & Qt::WindowTitleHint);
    EXPECT_FALSE(hija->windowFlags() & Qt::WindowCloseButtonHint);
    EXPECT_FALSE(hija->windowFlags() & Qt::WindowSystemMenuHint);
    Formularios::Mostrar(u"frmOtro"_s);
    Diario().clear();
    area.setActiveSubWindow(hija);
    EXPECT_EQ(Diario(), QStringList(u"frmTrabajo activate"_s));
    Formularios::Descargar(u"frmTrabajo"_s);
    EXPECT_EQ(area.subWindowList().size(), 1);
    Formularios::Reiniciar();
}

TEST_F(FormulariosTest, AFailureWithoutTrapIsShownByThePlatformAndEndsTheProcess) {
    Evento([] { throw ErrorZT(NumError::NoCoincidenTipos); });
    ASSERT_EQ(pantalla.plataforma.size(), 1U);
    EXPECT_EQ(pantalla.plataforma.front(),
              u"Error '13' en tiempo de ejecución:\r\n\r\nNo coinciden los tipos"_s);
    EXPECT_EQ(terminado, 1);
}

TEST_F(FormulariosTest, AFailureOfALibraryIsNeverSwallowed) {
    Evento([] { throw std::runtime_error("roto"); });
    ASSERT_EQ(pantalla.plataforma.size(), 1U);
    EXPECT_TRUE(pantalla.plataforma.front().contains(u"roto"));
    EXPECT_EQ(terminado, 1);
}

TEST_F(FormulariosTest, ATrapShowsTheFailureUnderTheFixedNamesAndTheFormStays) {
    EventoConTrampa(u"frmX"_s, u"frmNotX.cmd_Click"_s, [] { throw ErrorZT(NumError::Subindice, u"roto"_s); });
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().formulario, u"frmX"_s);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmNotX.cmd_Click"_s);
    EXPECT_EQ(pantalla.errores.front().descripcion, u"roto"_s);
    EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
    EXPECT_EQ(terminado, -1);
}

TEST_F(FormulariosTest, TheTrapOfAFormReportsUnderItsNameAndTheOneThatItsProceduresGoBy) {
    struct frmX : FormularioTrabajo {
        frmX() : FormularioTrabajo(u"frmX") {}
        using Formulario::ConTrampa;
    };
    struct frmY : frmX {
        [[nodiscard]] QString Modulo() const override { return u"frmNotY"_s; }
    };
    const auto falla = [] { throw ErrorZT(NumError::Subindice, u"roto"_s); };
    frmX().ConTrampa(u"Form_Load", falla);
    frmY().ConTrampa(u"Form_Load", falla);
    ASSERT_EQ(pantalla.errores.size(), 2U);
    EXPECT_EQ(pantalla.errores.front().formulario, u"frmX"_s);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmX.Form_Load"_s);
    EXPECT_EQ(pantalla.errores.back().formulario, u"frmX"_s);
    EXPECT_EQ(pantalla.errores.back().evento, u"frmNotY.Form_Load"_s);
}
