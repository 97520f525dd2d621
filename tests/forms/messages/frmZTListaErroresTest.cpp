#include "forms/messages/frmZTListaErrores.h"

#include <QFontInfo>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>

#include "forms/messages/PantallaQt.h"
#include "tests/support/DialogoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class frmZTListaErroresTest : public DialogoDePrueba {
  protected:
    template <class F>
    void Mostrar(const Tabla& errores, F accion) {
        AlAbrirse(frmZTListaErrores::kNombre, accion);
        ElFormulario<frmZTListaErrores>().ListaErrores(errores);
        Formularios::MostrarModal(frmZTListaErrores::kNombre.toString());
    }

    static QStringList Filas(const QWidget& v) {
        const auto& lista = Control<QListWidget>(v, "lstListaErrores");
        QStringList filas;
        for (int fila = 0; fila < lista.count(); ++fila) {
            filas += lista.item(fila)->text();
        }
        return filas;
    }

    static Tabla Errores(qint16 grupo0, qint16 codigo0, qint16 grupo1, qint16 codigo1) {
        Tabla tabla(1, 1);
        tabla(0, 0) = grupo0;
        tabla(1, 0) = codigo0;
        tabla(0, 1) = grupo1;
        tabla(1, 1) = codigo1;
        return tabla;
    }
};

}  // namespace

TEST_F(frmZTListaErroresTest, EachLineIsARowInTheOrderOfTheGroups) {
    Mostrar(Errores(2, 1, 0, 13), [](QWidget& v) {
        EXPECT_EQ(Filas(v), (QStringList{u"1- Ya existe una declaración con el mismo ejercicio,"_s,
                                         u"periodo y número de permiso para el declarante seleccionado"_s,
                                         u"2- Falta el nombre del declarante"_s}));
        Pulsar(v, "cmdAceptar");
    });
    EXPECT_FALSE(Formularios::Cargado(u"frmZTListaErrores"_s));
}

TEST_F(frmZTListaErroresTest, FaultsFollowTheLanguageAndTheFormsOwnCaptionsDoNot) {
    for (const qint16 offset : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = offset;
        Mostrar(Errores(0, 1, 1, 8), [offset](QWidget& v) {
            EXPECT_EQ(v.windowTitle(), u"Errores en la introducción de datos"_s);
            EXPECT_EQ(Control<QLabel>(v, "lblListaErrores").text(), u"Lista de errores cometidos"_s);
            EXPECT_EQ(Control<QPushButton>(v, "cmdAceptar").text(), u"Aceptar"_s);
            EXPECT_EQ(Filas(v).first(), offset == 0 ? u"1- Falta el nombre del declarante"_s
                                                    : u"1- Aitortzailearen izena falta da"_s);
            Pulsar(v, "cmdAceptar");
        });
    }
}

TEST_F(frmZTListaErroresTest, TheListIsFlatAndInAMonospacedFont) {
    Mostrar(Errores(0, 1, 1, 8), [](QWidget& v) {
        const auto& lista = Control<QListWidget>(v, "lstListaErrores");
        EXPECT_EQ(lista.frameShape(), QFrame::NoFrame);
        EXPECT_EQ(lista.font().families().first(), u"Courier New"_s);
        EXPECT_EQ(lista.fontMetrics().horizontalAdvance(u"iiii"_s),
                  lista.fontMetrics().horizontalAdvance(u"MMMM"_s));
        Pulsar(v, "cmdAceptar");
    });
}

TEST_F(frmZTListaErroresTest, TheLinesOfTheTableFitWithoutScrollingSideways) {
    Mostrar(Errores(0, 13, 1, 7), [](QWidget& v) {
        const auto& lista = Control<QListWidget>(v, "lstListaErrores");
        EXPECT_LE(lista.sizeHintForColumn(0), lista.viewport()->width());
        Pulsar(v, "cmdAceptar");
    });
}

TEST_F(frmZTListaErroresTest, EscapeAndTheCloseBoxCloseIt) {
    Mostrar(Errores(0, 1, 1, 8), [](QWidget& v) { QTest::keyClick(&v, Qt::Key_Escape); });
    Mostrar(Errores(0, 1, 1, 8), [](QWidget& v) { v.close(); });
}

TEST_F(frmZTListaErroresTest, ANewListReplacesTheOneBefore) {
    auto& formulario = ElFormulario<frmZTListaErrores>();
    formulario.ListaErrores(Errores(0, 1, 1, 8));
    formulario.ListaErrores(Errores(0, 5, 1, 6));
    EXPECT_EQ(Filas(formulario),
              (QStringList{u"1- Falta el nombre de la provincia"_s, u"2- El código postal es incorrecto"_s}));
}

TEST_F(frmZTListaErroresTest, TheScreenChannelShowsIt) {
    PantallaQt real;
    FijarPantalla(&real);
    AlAbrirse(frmZTListaErrores::kNombre, [](QWidget& v) {
        EXPECT_EQ(Filas(v).size(), 2);
        Pulsar(v, "cmdAceptar");
    });
    real.MostrarListaErrores(Errores(0, 1, 1, 8));
}
