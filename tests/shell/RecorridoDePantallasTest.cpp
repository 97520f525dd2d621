// A walk over every registered form: names, texts in both languages, keyboard, screen readers, and whether
// anything is cut off with the system's type and with one twice as large.

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QTextEdit>

#include "online/cZTActOnline.h"
#include "shell/Main.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

struct Caso {
    QString formulario;
    qint16 offset;
    int aumento;
};

class RecorridoDePantallasTest : public PruebaDeFormularios, public testing::WithParamInterface<Caso> {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        RegistrarFormularios();
        letra = QApplication::font();
        QFont grande = letra;
        grande.setPointSizeF(letra.pointSizeF() * GetParam().aumento);
        QApplication::setFont(grande);
        Entorno().OffsetIdioma = GetParam().offset;
        qint64 ahora = 0;
        Entorno().Milisegundos = [ahora]() mutable { return ahora += 1000; };
        oActOnline().ActOnline = 0;
    }
    void TearDown() override {
        PruebaDeFormularios::TearDown();
        QApplication::setFont(letra);
    }

    QWidget& Ventana() {
        Formularios::Mostrar(GetParam().formulario);
        QCoreApplication::processEvents();
        return Formularios::Obtener(GetParam().formulario).Ventana();
    }

    QFont letra;
};

std::string Nombre(const QWidget& control) {
    return (control.objectName() + u" \""_s + control.property("text").toString() + u'"').toStdString();
}

/// Whether the text of a control has room. Labels that wrap need the height for the width they have.
bool Cabe(const QWidget& control) {
    if (const auto* etiqueta = qobject_cast<const QLabel*>(&control); etiqueta != nullptr && etiqueta->wordWrap()) {
        return etiqueta->height() >= etiqueta->heightForWidth(etiqueta->width());
    }
    const QSize pide = control.minimumSizeHint();
    return control.width() >= pide.width() && control.height() >= pide.height();
}

bool EsDeQt(const QWidget& control) { return control.objectName().startsWith(u"qt_"); }

std::vector<Caso> Casos() {
    std::vector<Caso> casos;
    RegistrarFormularios();
    for (const QString& nombre : Formularios::Registrados()) {
        for (const qint16 offset : {qint16{0}, qint16{1000}}) {
            for (const int aumento : {1, 2}) {
                casos.push_back({nombre, offset, aumento});
            }
        }
    }
    return casos;
}

std::string NombreDelCaso(const testing::TestParamInfo<Caso>& caso) {
    return (caso.param.formulario + (caso.param.offset == 0 ? u"_cas"_s : u"_eus"_s) +
            (caso.param.aumento == 1 ? u""_s : u"_doble"_s))
        .toStdString();
}

}  // namespace

TEST_P(RecorridoDePantallasTest, EveryTextHasRoom) {
    for (const QWidget* control : Ventana().findChildren<QWidget*>()) {
        const bool conTexto = qobject_cast<const QLabel*>(control) != nullptr ||
                              qobject_cast<const QAbstractButton*>(control) != nullptr;
        if (conTexto && control->isVisible() && !EsDeQt(*control)) {
            EXPECT_TRUE(Cabe(*control)) << Nombre(*control);
        }
    }
}

TEST_P(RecorridoDePantallasTest, TheFormBearsItsNameAndATitleAndItsControlsHaveNamesOfTheirOwn) {
    QWidget& ventana = Ventana();
    EXPECT_EQ(ventana.objectName(), GetParam().formulario);
    EXPECT_FALSE(ventana.windowTitle().isEmpty() && GetParam().formulario != u"frmZTMsgBox");
    QStringList nombres;
    for (const QWidget* control : ventana.findChildren<QWidget*>()) {
        const bool deEntrada = control->focusPolicy() & Qt::TabFocus;
        if (deEntrada && !EsDeQt(*control)) {
            EXPECT_FALSE(control->objectName().isEmpty()) << control->metaObject()->className();
            EXPECT_FALSE(nombres.contains(control->objectName())) << Nombre(*control);
            nombres += control->objectName();
        }
    }
}

TEST_P(RecorridoDePantallasTest, ScreenReadersAreToldWhatEachControlIs) {
    QWidget& ventana = Ventana();
    for (const QWidget* control : ventana.findChildren<QWidget*>()) {
        const bool deDatos = qobject_cast<const QLineEdit*>(control) != nullptr ||
                             qobject_cast<const QAbstractItemView*>(control) != nullptr ||
                             qobject_cast<const QTextEdit*>(control) != nullptr;
        if (!deDatos || EsDeQt(*control)) {
            continue;
        }
        bool tieneNombre = !control->accessibleName().isEmpty();
        for (const QLabel* etiqueta : ventana.findChildren<QLabel*>()) {
            tieneNombre = tieneNombre || etiqueta->buddy() == control;
        }
        EXPECT_TRUE(tieneNombre) << Nombre(*control);
    }
}

INSTANTIATE_TEST_SUITE_P(Formularios, RecorridoDePantallasTest, testing::ValuesIn(Casos()), NombreDelCaso);
