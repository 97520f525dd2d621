// A walk over every registered form, once each: the Tab key, and whether its texts follow the language.

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QTest>
#include <QTreeView>
#include <QWindow>
#include <set>

#include "app/MDIZT.h"
#include "app/frmZTInicio.h"
#include "core/run/cZTFecha.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/RecorridoDePantallas.h"

using namespace Qt::StringLiterals;

namespace {

class RecorridoDeFormulariosTest : public RecorridoDePantallas, public testing::WithParamInterface<QString> {
  protected:
    /// Opens the form as a user meets it: over the main window, but for that itself and the splash. Each is
    /// active before the next comes, so that none takes the focus back.
    static QWidget& EnSuSitio() {
        if (GetParam() != MDIZT::kNombre && GetParam() != frmZTInicio::kNombre) {
            Activar(Abrir(MDIZT::kNombre.toString()));
        }
        QWidget& ventana = Abrir(GetParam());
        Activar(ventana);
        return ventana;
    }

  private:
    static void Activar(const QWidget& ventana) { EXPECT_TRUE(EsperarActiva(ventana.window())); }
};

/// The places of a form where the Tab key can stop now.
std::set<const QWidget*> Paradas(const QWidget& ventana) {
    std::set<const QWidget*> paradas;
    for (const QWidget* control : ventana.findChildren<QWidget*>()) {
        if (EsParada(*control) && control->isVisible() && control->isEnabled()) {
            paradas.insert(control);
        }
    }
    return paradas;
}

/// The first of these places in the order of the Tab key.
QWidget& Primera(const QWidget& ventana, const std::set<const QWidget*>& paradas) {
    QWidget* control = ventana.nextInFocusChain();
    while (!paradas.contains(control)) {
        control = control->nextInFocusChain();
    }
    return *control;
}

/// Texts that a form shows in its title, labels, buttons, groups, headings and menus.
std::set<QString> Textos(const QWidget& ventana) {
    std::set<QString> textos{ventana.windowTitle()};
    for (const QWidget* control : ventana.findChildren<QWidget*>()) {
        if (!control->isVisible()) {
            continue;
        }
        if (const auto* grupo = qobject_cast<const QGroupBox*>(control)) {
            textos.insert(grupo->title());
        } else if (const auto* lista = qobject_cast<const QTreeView*>(control)) {
            for (int columna = 0; columna < lista->header()->count(); ++columna) {
                textos.insert(lista->model()->headerData(columna, Qt::Horizontal).toString());
            }
        } else if (qobject_cast<const QLabel*>(control) != nullptr ||
                   qobject_cast<const QAbstractButton*>(control) != nullptr) {
            textos.insert(control->property("text").toString());
        }
    }
    for (const QAction* entrada : ventana.findChildren<QAction*>()) {
        textos.insert(entrada->text());
    }
    return textos;
}

/// Forms that stay as they are in both languages: the errors in Castellano, the rest in both at once.
bool DeTextosFijos(const QString& formulario) {
    return QStringList({u"frmZTGestErrores"_s, u"frmZTIdioma"_s, u"frmZTInicio"_s, u"frmZTListaErrores"_s,
                        u"frmZTSinConexion"_s, u"frmZTVersionCheck"_s})
        .contains(formulario);
}

std::string NombreDelCaso(const testing::TestParamInfo<QString>& caso) { return caso.param.toStdString(); }

}  // namespace

TEST_P(RecorridoDeFormulariosTest, TheTabKeyVisitsEveryStopOnceAndComesBack) {
    QWidget& ventana = EnSuSitio();
    const std::set<const QWidget*> paradas = Paradas(ventana);
    ASSERT_EQ(paradas.empty(), GetParam() == frmZTInicio::kNombre);
    if (paradas.empty()) {
        return;
    }
    QWidget& primera = Primera(ventana, paradas);
    primera.setFocus(Qt::TabFocusReason);
    std::set<const QWidget*> visitadas;
    for (std::size_t i = 0; i < paradas.size(); ++i) {
        const QWidget* ahora = QApplication::focusWidget();
        ASSERT_NE(ahora, nullptr);
        EXPECT_TRUE(paradas.contains(ahora)) << Nombre(*ahora);
        EXPECT_TRUE(visitadas.insert(ahora).second) << "twice on " << Nombre(*ahora);
        QTest::keyClick(ventana.window()->windowHandle(), Qt::Key_Tab);
    }
    EXPECT_EQ(QApplication::focusWidget(), &primera);
}

TEST_P(RecorridoDeFormulariosTest, ItsTextsFollowTheLanguageUnlessTheyAreFixed) {
    const std::set<QString> castellano = Textos(EnSuSitio());
    Formularios::Reiniciar();
    oFecha().IDI(u"E"_s);
    const std::set<QString> euskera = Textos(EnSuSitio());
    if (DeTextosFijos(GetParam())) {
        EXPECT_EQ(castellano, euskera);
    } else {
        EXPECT_NE(castellano, euskera);
    }
}

INSTANTIATE_TEST_SUITE_P(Formularios, RecorridoDeFormulariosTest, testing::ValuesIn(TodosLosFormularios()),
                         NombreDelCaso);
