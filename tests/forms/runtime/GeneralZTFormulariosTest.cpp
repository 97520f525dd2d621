#include "forms/runtime/GeneralZTFormularios.h"

#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTest>
#include <QToolBar>

#include "core/run/GeneralZT.h"
#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/Colocacion.h"
#include "forms/widgets/ListaZT.h"
#include "tests/support/EsperarActiva.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

/// A form with a pick list, its picture and the box of the code, the picture inside a group of its own.
class ListasDeEleccionTest : public EntornoDePrueba {
  protected:
    ListasDeEleccionTest() {
        form.resize(500, 400);
        grupo.setGeometry(20, 30, 300, 200);
        caja.setGeometry(10, 10, 60, 24);
        imagen.setGeometry(80, 10, 24, 24);
        lista.hide();
    }

    void Mostrar() {
        form.show();
        form.activateWindow();
        ASSERT_TRUE(EsperarActiva(&form));
    }

    void Llenar(int cuantos) {
        for (int i = 1; i <= cuantos; ++i) {
            lista.Anadir(u"c"_s + QString::number(i), u"Nombre "_s + QString::number(i));
        }
    }

    static Tabla DosColumnas(const std::vector<std::pair<Valor, QString>>& filas) {
        Tabla tabla(1, static_cast<int>(filas.size()) - 1);
        int fila = 0;
        for (const auto& [codigo, nombre] : filas) {
            tabla(0, fila) = codigo;
            tabla(1, fila++) = nombre;
        }
        return tabla;
    }

    QWidget form;
    QWidget grupo{&form};
    QLineEdit caja{&grupo};
    BotonImagen imagen{&grupo};
    ListaZT lista{&form};
};

/// A form with a list of ten rows, four heading labels over it and the picture of the order.
class OrdenDeListaTest : public testing::Test {
  protected:
    OrdenDeListaTest() {
        form.resize(600, 400);
        grupo.setGeometry(30, 60, 500, 200);
        lista.setGeometry(10, 40, 400, 80);
        picOrden.setGeometry(0, 20, 16, 16);
        picOrden.hide();
        int columna = 1;
        for (QLabel* etiqueta : {&col1, &col2, &col3}) {
            etiqueta->setObjectName(u"lblCol"_s + QString::number(columna));
            etiqueta->resize(50 + 10 * columna++, 20);
        }
    }

    void Llenar() {
        for (int i = 0; i < 10; ++i) {
            lista.Anadir({}, QString::number(i), {QString::number(9 - i), QString::number(i % 3)});
        }
    }

    void Mostrar() {
        form.show();
        form.activateWindow();
        otra.setFocus();
        ASSERT_TRUE(EsperarActiva(&form));
    }

    bool ALaVista(int i) const {
        const QRect fila = lista.visualRect(lista.model()->index(i - 1, 0));
        return lista.viewport()->rect().contains(fila.center());
    }

    QWidget form;
    QWidget grupo{&form};
    ListaZT lista{&grupo};
    QLabel picOrden{&form};
    QLabel col1{&grupo};
    QLabel col2{&grupo};
    QLabel col3{&grupo};
    QLineEdit otra{&form};
};

/// A frame like the program's, and forms that place themselves on it when they are loaded.
class ColocacionTest : public PruebaDeFormularios {
  protected:
    struct frmColocado : FormularioTrabajo {
        static constexpr QStringView kNombre = u"frmColocado";
        frmColocado() : FormularioTrabajo(kNombre.toString()) {}
        void Form_Load() override { PosicionaFormulario(*this, 6000, 3000); }
    };

    void SetUp() override {
        PruebaDeFormularios::SetUp();
        RegistrarFormulario<frmColocado>();
        marco.setObjectName(u"MDIZT"_s);
        barra.setObjectName(u"tlbMdi"_s);
        barra.addAction(u"x"_s);
        marco.addToolBar(&barra);
        marco.setCentralWidget(area);
        marco.resize(1000, 700);
    }

    void MostrarMarco() {
        marco.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&marco));
        Formularios::FijarMarco(area);
    }

    QPoint LugarDe(QSize tamano) const {
        return {marco.width() / 2 - tamano.width() / 2,
                marco.height() / 2 - barra.height() - tamano.height() / 2};
    }

    QMainWindow marco;
    QToolBar barra;
    QMdiArea* area = new QMdiArea;
};

}  // namespace

TEST_F(ListasDeEleccionTest, ANumericCodeHasALetterInFrontOfItsKeyAndAnotherHasNone) {
    MostrarDatosLista(lista, DosColumnas({{Valor(qint32{20}), u"Ondarzia"_s},
                                          {Valor(u"CL"_s), u"CALLE"_s},
                                          {Valor(u"07"_s), u"Illes Balears"_s}}));
    ASSERT_EQ(lista.Cuenta(), 3);
    EXPECT_EQ(lista.Clave(1), u"c20"_s);
    EXPECT_EQ(lista.Texto(1), u"Ondarzia"_s);
    EXPECT_EQ(lista.Clave(2), u"CL"_s);
    EXPECT_EQ(lista.Clave(3), u"c07"_s);
}

TEST_F(ListasDeEleccionTest, ACodeThatIsThereAlreadyFailsUnderTheNameOfTheProcedure) {
    const Tabla repetida = DosColumnas({{Valor(qint32{1}), u"uno"_s}, {Valor(qint32{1}), u"otro"_s}});
    EXPECT_EQ(NumeroDelError([&] { MostrarDatosLista(lista, repetida); }), 35602);
    EXPECT_EQ(lista.Cuenta(), 1);
    EXPECT_EQ(DescripcionDelError([&] { MostrarDatosLista(lista, repetida); }),
              u"General.MostrarDatosLista\r\nLa clave no es única en la colección"_s);
}

TEST_F(ListasDeEleccionTest, ANullResultFailsAsATypeMismatch) {
    EXPECT_EQ(NumeroDelError([&] { MostrarDatosLista(lista, Tabla()); }), 13);
}

TEST_F(ListasDeEleccionTest, TheThreeListsAreFilledFromTheReferenceStoreInTheLanguageInForce) {
    ListaZT siglas;
    ListaZT municipios;
    InicializarListas(&siglas, &lista, &municipios);
    EXPECT_EQ(lista.Cuenta(), 52);
    EXPECT_EQ(ExisteValorLista(lista, u"c1"_s), u"Araba/Álava"_s);
    EXPECT_EQ(ExisteValorLista(siglas, u"CL"_s), u"CALLE"_s);
    EXPECT_EQ(ExisteValorLista(municipios, u"c1"_s), u"Abarzelai"_s);

    lista.Limpiar();
    siglas.Limpiar();
    Entorno().OffsetIdioma = 1000;
    InicializarListas(&siglas, &lista, nullptr);
    EXPECT_EQ(ExisteValorLista(lista, u"c1"_s), u"Araba"_s);
    EXPECT_EQ(ExisteValorLista(siglas, u"CL"_s), u"KALEA"_s);
}

TEST_F(ListasDeEleccionTest, AListThatAFormLacksIsPassedOver) {
    InicializarListas(nullptr, &lista, nullptr);
    EXPECT_EQ(lista.Cuenta(), 52);
    InicializarListas(nullptr, nullptr, nullptr);
}

TEST_F(ListasDeEleccionTest, TheMunicipalitiesAreFilledBeforeTheProvinces) {
    ListaZT siglas;
    ListaZT municipios;
    municipios.Anadir(u"c1"_s, u"en medio"_s);
    const QString descripcion = DescripcionDelError([&] { InicializarListas(&siglas, &lista, &municipios); });
    EXPECT_TRUE(descripcion.startsWith(u"General.InicializarListas\r\nGeneral.MostrarDatosLista\r\n"));
    EXPECT_GT(siglas.Cuenta(), 0);
    EXPECT_EQ(lista.Cuenta(), 0);
}

TEST_F(ListasDeEleccionTest, AListAppearsWhereItIsToldAndOverTheOtherControls) {
    Mostrar();
    grupo.raise();
    lista.resize(100, 80);
    ActivarLista(lista, 40, 50);
    EXPECT_EQ(lista.pos(), QPoint(40, 50));
    EXPECT_TRUE(lista.isVisible());
    EXPECT_TRUE(lista.isAncestorOf(form.childAt(60, 70)));
}

TEST_F(ListasDeEleccionTest, AListThatWouldBeCutOffIsMovedIntoTheForm) {
    lista.resize(100, 80);
    ActivarLista(lista, 450, 380);
    EXPECT_EQ(lista.geometry(), QRect(400, 320, 100, 80));
    lista.resize(100, 900);
    ActivarLista(lista, 10, 10);
    EXPECT_EQ(lista.geometry(), QRect(10, 0, 100, 400));
}

TEST_F(ListasDeEleccionTest, APickListDropsAtItsPictureAndTakesTheFocus) {
    Llenar(3);
    Mostrar();
    EXPECT_TRUE(MostrarLista(lista, imagen, caja));
    EXPECT_EQ(lista.pos(), imagen.mapTo(&form, QPoint(0, 0)));
    EXPECT_TRUE(lista.hasFocus());
    EXPECT_EQ(lista.size(), lista.TamanoDesplegada());
}

TEST_F(ListasDeEleccionTest, TheItemOfTheCodeInTheBoxIsSelectedAndInSight) {
    Llenar(52);
    Mostrar();
    for (const QString& codigo : {u"30"_s, u" 030 "_s}) {
        caja.setText(codigo);
        EXPECT_TRUE(MostrarLista(lista, imagen, caja));
        EXPECT_EQ(lista.Seleccionado(), 30) << codigo.toStdString();
        EXPECT_TRUE(lista.Marcado(30));
        const QRect fila = lista.visualRect(lista.model()->index(29, 0));
        EXPECT_TRUE(lista.viewport()->rect().contains(fila));
        lista.Seleccionar(1);
    }
}

TEST_F(ListasDeEleccionTest, ACodeThatIsNotInTheListAndAnEmptyBoxGiveTheFirstItem) {
    Llenar(5);
    Mostrar();
    for (const QString& codigo : {u"99"_s, u"00"_s, u""_s, u"X"_s}) {
        lista.Seleccionar(4);
        caja.setText(codigo);
        EXPECT_TRUE(MostrarLista(lista, imagen, caja));
        EXPECT_EQ(lista.Seleccionado(), 1) << codigo.toStdString();
    }
}

TEST_F(ListasDeEleccionTest, AListCanBeDroppedAtAnItemFoundOtherwise) {
    lista.Anadir(u"AV"_s, u"AVENIDA"_s);
    lista.Anadir(u"CL"_s, u"CALLE"_s);
    Mostrar();
    DesplegarLista(lista, imagen, lista.Buscar(u"CL"_s));
    EXPECT_EQ(lista.Seleccionado(), 2);
    DesplegarLista(lista, imagen, lista.Buscar(u"ZZ"_s));
    EXPECT_EQ(lista.Seleccionado(), 1);
}

TEST_F(ListasDeEleccionTest, AnEmptyPickListStillReportsAChoice) {
    Mostrar();
    EXPECT_TRUE(MostrarLista(lista, imagen, caja));
    EXPECT_TRUE(lista.isVisible());
}

TEST_F(ListasDeEleccionTest, TheTextOfAKeyIsFoundByTheWholeKey) {
    Llenar(12);
    EXPECT_EQ(ExisteValorLista(lista, u"c12"_s), u"Nombre 12"_s);
    EXPECT_EQ(ExisteValorLista(lista, u"12"_s), QString());
    EXPECT_EQ(ExisteValorLista(lista, u"c13"_s), QString());
}

TEST_F(OrdenDeListaTest, AnEmptyListIsLeftAloneWithItsPicture) {
    picOrden.show();
    Mostrar();
    OrdenarColumna(lista, 0, form, picOrden);
    OrdenarColumna(lista, 2, form, picOrden);
    EXPECT_TRUE(picOrden.isVisible());
    EXPECT_FALSE(lista.Ordenado());
    EXPECT_TRUE(otra.hasFocus());
}

TEST_F(OrdenDeListaTest, AColumnOrdersTheListByThatSubitemAndGivesItTheFocus) {
    Llenar();
    lista.Seleccionar(1);
    Mostrar();
    OrdenarColumna(lista, 1, form, picOrden);
    EXPECT_TRUE(lista.Ordenado());
    EXPECT_EQ(lista.ClaveOrden(), 1);
    EXPECT_EQ(lista.Texto(1), u"9"_s);
    EXPECT_TRUE(lista.hasFocus());
    EXPECT_EQ(lista.Seleccionado(), 10);
    EXPECT_TRUE(ALaVista(10));
}

TEST_F(OrdenDeListaTest, ThePictureSitsAtTheRightEdgeOfTheHeadingOfTheColumn) {
    Llenar();
    Mostrar();
    const int izquierda = lista.mapTo(&form, QPoint(0, 0)).x();
    OrdenarColumna(lista, 1, form, picOrden);
    EXPECT_TRUE(picOrden.isVisible());
    EXPECT_EQ(picOrden.pos(), QPoint(izquierda + 60 - 16, 20));
    OrdenarColumna(lista, 2, form, picOrden);
    EXPECT_EQ(picOrden.x(), izquierda + 60 + 70 - 16);
}

TEST_F(OrdenDeListaTest, AListThatIsNotSeenIsOrderedWithoutTakingTheFocus) {
    Llenar();
    lista.hide();
    Mostrar();
    OrdenarColumna(lista, 1, form, picOrden);
    EXPECT_TRUE(lista.Ordenado());
    EXPECT_TRUE(otra.hasFocus());
}

TEST_F(OrdenDeListaTest, ColumnZeroEndsTheOrderAndHidesThePicture) {
    Llenar();
    lista.Seleccionar(10);
    Mostrar();
    OrdenarColumna(lista, 1, form, picOrden);
    lista.AsegurarVisible(10);
    OrdenarColumna(lista, 0, form, picOrden);
    EXPECT_FALSE(lista.Ordenado());
    EXPECT_FALSE(picOrden.isVisible());
    EXPECT_TRUE(lista.hasFocus());
    EXPECT_EQ(lista.Seleccionado(), 1);
    EXPECT_TRUE(ALaVista(1));
}

TEST_F(OrdenDeListaTest, FirstLastAndAGivenItemAreSelectedAndInSight) {
    Llenar();
    Mostrar();
    SeleccionarUltimo(lista);
    EXPECT_EQ(lista.Seleccionado(), 10);
    EXPECT_TRUE(lista.Marcado(10));
    EXPECT_TRUE(ALaVista(10));
    SeleccionarPrimero(lista);
    EXPECT_EQ(lista.Seleccionado(), 1);
    EXPECT_TRUE(ALaVista(1));
    SeleccionarElemento(lista, 8);
    EXPECT_EQ(lista.Seleccionado(), 8);
    EXPECT_TRUE(ALaVista(8));
}

TEST_F(OrdenDeListaTest, SelectingInAnEmptyListDoesNothing) {
    SeleccionarPrimero(lista);
    SeleccionarUltimo(lista);
    SeleccionarElemento(lista, 3);
    EXPECT_EQ(lista.Cuenta(), 0);
}

TEST(CamposDeEntrada, TheWholeTextIsSelected) {
    QLineEdit caja;
    caja.setObjectName(u"txtNIF"_s);
    caja.setText(u"12345678Z"_s);
    SeleccionarTexto(caja);
    EXPECT_EQ(caja.selectedText(), u"12345678Z"_s);
    EXPECT_FALSE(caja.property("OldValue").isValid());
}

TEST(CamposDeEntrada, ANumericBoxKeepsItsTextAsTheOldValue) {
    QLineEdit caja;
    caja.setObjectName(u"cnuExento1"_s);
    caja.setText(u"1.234,50"_s);
    SeleccionarTexto(caja);
    EXPECT_EQ(caja.selectedText(), u"1.234,50"_s);
    EXPECT_EQ(caja.property("OldValue").toString(), u"1.234,50"_s);
}

TEST_F(ColocacionTest, AFormIsCentredButHigherByTheHeightOfTheToolBar) {
    MostrarMarco();
    Formularios::Mostrar(u"frmColocado"_s);
    const QWidget& hija = *Formularios::Obtener(u"frmColocado"_s).Ventana().parentWidget();
    EXPECT_GT(barra.height(), 0);
    EXPECT_EQ(hija.pos(), LugarDe(hija.size()));
}

TEST_F(ColocacionTest, TheSizeIsGivenInTwips) {
    MostrarMarco();
    Formularios::Mostrar(u"frmColocado"_s);
    const QWidget& form = Formularios::Obtener(u"frmColocado"_s).Ventana();
    EXPECT_EQ(form.size(), QSize(TwipsAPixeles(6000, form), TwipsAPixeles(3000, form)));
}

TEST_F(ColocacionTest, AZeroLeavesASideAsItIs) {
    MostrarMarco();
    Formularios::Mostrar(u"frmColocado"_s);
    QWidget& form = Formularios::Obtener(u"frmColocado"_s).Ventana();
    const QSize antes = form.size();
    PosicionaFormulario(form, 0, 0);
    EXPECT_EQ(form.size(), antes);
    PosicionaFormulario(form, 4500, 0);
    EXPECT_EQ(form.size(), QSize(TwipsAPixeles(4500, form), antes.height()));
    EXPECT_EQ(form.parentWidget()->pos(), LugarDe(form.parentWidget()->size()));
}

TEST_F(ColocacionTest, AFormIsNeverAboveOrLeftOfTheFrame) {
    marco.resize(300, 200);
    MostrarMarco();
    Formularios::Mostrar(u"frmColocado"_s);
    EXPECT_EQ(Formularios::Obtener(u"frmColocado"_s).Ventana().parentWidget()->pos(), QPoint(0, 0));
}

TEST_F(ColocacionTest, AFormThatWaitsForItsFrameTakesItsPlaceWhenThatAppears) {
    Formularios::FijarMarco(area);
    Formularios::Mostrar(u"frmColocado"_s);
    MostrarMarco();
    const QWidget& hija = *Formularios::Obtener(u"frmColocado"_s).Ventana().parentWidget();
    EXPECT_EQ(hija.pos(), LugarDe(hija.size()));
}

TEST_F(ColocacionTest, ADialogIsPlacedOverTheFrameOnTheScreen) {
    MostrarMarco();
    QDialog dialogo;
    dialogo.resize(200, 100);
    PosicionaFormulario(dialogo, 0, 0);
    dialogo.show();
    EXPECT_EQ(dialogo.pos(), area->viewport()->mapToGlobal(LugarDe(dialogo.size())));
}

TEST_F(ColocacionTest, WithoutAFrameAFormGetsItsSizeOnly) {
    marco.setObjectName(u"otra"_s);
    QWidget form;
    form.move(17, 19);
    PosicionaFormulario(form, 3000, 1500);
    form.show();
    EXPECT_EQ(form.pos(), QPoint(17, 19));
    EXPECT_EQ(form.size(), QSize(TwipsAPixeles(3000, form), TwipsAPixeles(1500, form)));
}
