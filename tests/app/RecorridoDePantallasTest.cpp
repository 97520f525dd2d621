// A walk over every registered form: names, texts in both languages, screen readers, and whether anything is
// cut off with the system's type and with one twice as large.

#include <QApplication>

#include "core/run/cZTFecha.h"
#include "tests/support/RecorridoDePantallas.h"

using namespace Qt::StringLiterals;

namespace {

struct Caso {
    QString formulario;
    qint16 offset;
    int aumento;

    friend void PrintTo(const Caso& caso, std::ostream* salida) {
        *salida << caso.formulario.toStdString() << (caso.offset == 0 ? " in Castellano" : " in Euskera")
                << ", type times " << caso.aumento;
    }
};

class RecorridoDePantallasTest : public RecorridoDePantallas, public testing::WithParamInterface<Caso> {
  protected:
    void SetUp() override {
        RecorridoDePantallas::SetUp();
        letra = QApplication::font();
        QFont grande = letra;
        grande.setPointSizeF(letra.pointSizeF() * GetParam().aumento);
        QApplication::setFont(grande);
        oFecha().IDI(GetParam().offset == 0 ? u"C"_s : u"E"_s);
    }
    void TearDown() override {
        RecorridoDePantallas::TearDown();
        QApplication::setFont(letra);
    }

    static QWidget& Ventana() { return Abrir(GetParam().formulario); }

    QFont letra;
};

std::vector<Caso> Casos() {
    std::vector<Caso> casos;
    for (const QString& nombre : TodosLosFormularios()) {
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

TEST_P(RecorridoDePantallasTest, TheFormOpensWithoutAFailure) {
    EXPECT_TRUE(Ventana().isVisible());
    for (const auto& error : pantalla.errores) {
        ADD_FAILURE() << error.evento.toStdString() << ": " << error.descripcion.toStdString();
    }
    for (const QString& mensaje : pantalla.plataforma) {
        ADD_FAILURE() << mensaje.toStdString();
    }
    EXPECT_EQ(terminado, -1);
}

TEST_P(RecorridoDePantallasTest, EveryTextHasRoom) {
    for (const QWidget* control : Ventana().findChildren<QWidget*>()) {
        if (EsEtiquetaOBoton(*control) && control->isVisible() && !EsDeQt(*control)) {
            EXPECT_TRUE(Cabe(*control)) << Nombre(*control);
        }
    }
}

TEST_P(RecorridoDePantallasTest, TheFormBearsItsNameAndATitleAndItsControlsHaveNamesOfTheirOwn) {
    QWidget& ventana = Ventana();
    EXPECT_EQ(ventana.objectName(), GetParam().formulario);
    EXPECT_FALSE(ventana.windowTitle().isEmpty());
    QStringList nombres;
    for (const QWidget* control : ventana.findChildren<QWidget*>()) {
        if ((EsParada(*control) || EsEtiquetaOBoton(*control)) && !EsDeQt(*control)) {
            EXPECT_FALSE(control->objectName().isEmpty()) << Nombre(*control);
            EXPECT_FALSE(nombres.contains(control->objectName())) << Nombre(*control);
            nombres += control->objectName();
        }
    }
}

TEST_P(RecorridoDePantallasTest, ScreenReadersAreToldWhatEachControlIs) {
    const QWidget& ventana = Ventana();
    for (const QWidget* control : ventana.findChildren<QWidget*>()) {
        if (NecesitaNombre(*control) && !EsDeQt(*control)) {
            EXPECT_TRUE(!control->accessibleName().isEmpty() || TieneEtiqueta(ventana, *control))
                << Nombre(*control);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Formularios, RecorridoDePantallasTest, testing::ValuesIn(Casos()), NombreDelCaso);
