// F1 in the dialogs that come before the main window.

#include <QTextBrowser>

#include "core/help/TemasDeAyuda.h"
#include "forms/help/EjecutarAyuda.h"
#include "forms/help/VentanaAyuda.h"
#include "tests/support/AyudaInstalada.h"
#include "tests/support/DialogoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class AyudaAntesDelMarcoTest : public DialogoDePrueba, public testing::WithParamInterface<QString> {
  protected:
    void SetUp() override {
        DialogoDePrueba::SetUp();
        InstalarAyuda(carpeta.path());
    }

    /// Title of the topic in the help window that is open; empty without one.
    static QString Tema() {
        for (const QWidget* ventana : QApplication::topLevelWidgets()) {
            if (qobject_cast<const VentanaAyuda*>(ventana) != nullptr && ventana->isVisible()) {
                return ventana->findChild<QTextBrowser*>(u"txtAyuda"_s)->documentTitle();
            }
        }
        return {};
    }
    static QString TituloDelTemaDe(const QString& formulario) {
        const TemasDeAyuda temas(CarpetaDeAyuda());
        const QString fichero = temas.TemaDeFormulario(formulario);
        for (const TemaDeAyuda& tema : temas.Temas()) {
            if (tema.fichero == fichero) {
                return tema.titulo;
            }
        }
        return {};
    }
};

std::string NombreDelCaso(const testing::TestParamInfo<QString>& caso) { return caso.param.toStdString(); }

}  // namespace

TEST_P(AyudaAntesDelMarcoTest, F1ShowsTheTopicOfTheDialogWhichStaysInUse) {
    const QString esperado = TituloDelTemaDe(GetParam());
    ASSERT_FALSE(esperado.isEmpty());
    AlAbrirse(GetParam(), [&](QWidget& dialogo) {
        QTest::keyClick(dialogo.windowHandle(), Qt::Key_F1);
        EXPECT_EQ(Tema(), esperado);
        EXPECT_TRUE(dialogo.isVisible());
        Formularios::Descargar(GetParam());
    });
    Formularios::MostrarModal(GetParam());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(Tema(), QString()) << "it goes with its dialog";
}

INSTANTIATE_TEST_SUITE_P(Dialogos, AyudaAntesDelMarcoTest,
                         testing::Values(u"frmZTVuelta"_s, u"frmZTVersionCheck"_s, u"frmZTSinConexion"_s),
                         NombreDelCaso);

class AyudaSinDialogoTest : public AyudaAntesDelMarcoTest {};

TEST_F(AyudaSinDialogoTest, TheSplashHasNoHelp) {
    qint64 ahora = 0;
    Entorno().Milisegundos = [&ahora] { return ahora += 1000; };
    Formularios::Mostrar(u"frmZTInicio"_s);
    QTest::keyClick(&Formularios::Obtener(u"frmZTInicio"_s).Ventana(), Qt::Key_F1);
    EXPECT_EQ(Tema(), QString());
}
