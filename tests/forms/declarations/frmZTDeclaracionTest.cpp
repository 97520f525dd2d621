#include "forms/declarations/frmZTDeclaracion.h"

#include "core/records/cZTAnexos.h"
#include "core/records/cZTNuevaDec.h"
#include "core/services/svrZELT/cZTAnexos.h"
#include "core/store/Almacen.h"
#include "forms/declarations/frmZTDetDeclaracion.h"
#include "forms/declarations/frmZTListaDeclaraciones.h"
#include "forms/runtime/Menus.h"
#include "tests/support/PruebaDeDeclaraciones.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList kColumnas{u"lblExento"_s, u"lblBaseImp"_s, u"lblTipo"_s, u"lblCuota"_s};

class frmZTDeclaracionTest : public PruebaDeDeclaraciones {
  protected:
    /// Opens the summary of a stored declaration with the rates in force and those lines, each product,
    /// exempt quantity and base in hundredths.
    struct Linea {
        qint16 producto;
        double SUMEX, BASIM;
    };
    void AbrirCon(qint16 ejercicio, const std::vector<Linea>& lineas = {}) {
        const qint32 csdc = NuevaDeclaracion(ejercicio, 2, {24e6, 24e6, 6e6, 1e6, 24e6, 6e6});
        const qint32 cses = NuevoEstablecimiento(u"20ES123Y"_s);
        Tabla anexos(7, static_cast<int>(lineas.size()));
        int fila = 0;
        for (const Linea& linea : lineas) {
            ++fila;
            anexos(2, fila) = cses;
            anexos(3, fila) = linea.producto;
            anexos(4, fila) = linea.SUMEX;
            anexos(5, fila) = linea.BASIM;
            anexos(6, fila) = 24e6;
        }
        svrZELT::cZTAnexos servidor;
        servidor.mdbmod = Entorno().mdbmod;
        ASSERT_TRUE(servidor.GuardarAnexos(anexos, Registro{24e6, 24e6, 6e6, 1e6, 24e6, 6e6}, csdc));
        AbrirDeclaracion(csdc, ejercicio, 2);
        Abrir(frmZTDeclaracion::kNombre);
    }
    /// The figures of a product, in the order of the columns.
    [[nodiscard]] QStringList Figuras(int k) const {
        QStringList textos;
        for (const QString& columna : kColumnas) {
            textos += TextoDe(columna + QString::number(k));
        }
        return textos;
    }
    static void Cerrar() { Formularios::Descargar(frmZTDeclaracion::kNombre.toString()); }
};

}  // namespace

TEST_F(frmZTDeclaracionTest, CaptionsAreInTheLanguageInForceAndTheDataAreNot) {
    AbrirCon(2002);
    for (const qint16 idioma : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = idioma;
        Cerrar();
        Abrir(frmZTDeclaracion::kNombre);
        EXPECT_EQ(formulario->windowTitle(), Texto(33));
        EsperarTextos({{u"lblDatosDte"_s, Texto(74)},
                       {u"lblDeclarante"_s, Texto(2) + u':'},
                       {u"lblDec"_s, u"GASOLINERA & HIJOS"_s},
                       {u"lblNIF"_s, Texto(59) + u':'},
                       {u"lblDNI"_s, u"12345678Z"_s},
                       {u"lblDatosDeclaracion"_s, Texto(103)},
                       {u"lblEjercicio"_s, Texto(37) + u':'},
                       {u"lblEjer"_s, u"2002"_s},
                       {u"lblPeriodo"_s, Texto(38) + u':'},
                       {u"lblPer"_s, Texto(40)},
                       {u"lblExento"_s, Texto(186)},
                       {u"lblBaseImp"_s, Texto(187)},
                       {u"lblTipo"_s, Texto(188)},
                       {u"lblCuota"_s, Texto(176)},
                       {u"lblTotal"_s, Texto(117)},
                       {u"cmdDetalles"_s, Texto(87)},
                       {u"cmdCerrarDec"_s, Texto(20)},
                       {u"lblTipo1"_s, u"24,000000"_s}});
        for (int k = 1; k <= 6; ++k) {
            EXPECT_EQ(TextoDe(u"lblProducto"_s + QString::number(k)), Texto(179 + k));
        }
    }
}

TEST_F(frmZTDeclaracionTest, EachProductHasItsFourFiguresAndNoZeroIsShown) {
    AbrirCon(2007, {{1, 150, 123456}, {4, 200, 0}, {5, 0, -100}});
    EXPECT_EQ(Figuras(1), (QStringList{u"1,50"_s, u"1.234,56"_s, u"24,000000"_s, u"29.629,44"_s}));
    EXPECT_EQ(Figuras(2), (QStringList{QString(), QString(), u"24,000000"_s, QString()}));
    EXPECT_EQ(Figuras(4), (QStringList{u"2,00"_s, QString(), u"1,000000"_s, QString()}));
    EXPECT_EQ(Figuras(5), (QStringList{QString(), u"-1,00"_s, u"24,000000"_s, u"-24,00"_s}));
    EXPECT_EQ(TextoDe(u"lblCuotaTotal"_s), u"29.605,44"_s);
}

TEST_F(frmZTDeclaracionTest, ATotalOfNothingIsEmpty) {
    AbrirCon(2007, {{1, 150, 0}});
    EXPECT_EQ(TextoDe(u"lblCuotaTotal"_s), QString());
    EXPECT_EQ(TextoDe(u"lblExento1"_s), u"1,50"_s);
}

TEST_F(frmZTDeclaracionTest, ANewDeclarationShowsAnEmptyGridThoughItHasItsRates) {
    oNuevaDec().Ejercicio = 2002;
    oNuevaDec().Periodo = 1;
    oDeclaraciones().Modo = cZTDeclaraciones::kModoNuevo;
    oDeclaraciones().InicializarDatos();
    oDeclaraciones().Ejercicio = 2002;
    oDeclaraciones().Periodo = 1;
    ASSERT_EQ(oDeclaraciones().TIPIM(1), 24.0);
    Abrir(frmZTDeclaracion::kNombre);
    for (int k = 1; k <= 6; ++k) {
        EXPECT_EQ(Figuras(k), QStringList(4, QString())) << k;
    }
    EXPECT_EQ(TextoDe(u"lblCuotaTotal"_s), QString());
    EXPECT_EQ(TextoDe(u"lblEjer"_s), u"2002"_s);
    EXPECT_EQ(TextoDe(u"lblPer"_s), u"1º Trimestre"_s);
}

TEST_F(frmZTDeclaracionTest, In2002TheSixthRateIsThatOfTheAnnexes) {
    AbrirCon(2002);
    EXPECT_EQ(TextoDe(u"lblProducto6"_s), Texto(185));
    EXPECT_EQ(TextoDe(u"lblTipo6"_s), u"6,000000"_s);
    Cerrar();
    oAnexos().TIPIM(6, 7.5);
    oAnexos().TIPIM(5, 8.5);
    Abrir(frmZTDeclaracion::kNombre);
    EXPECT_EQ(TextoDe(u"lblTipo6"_s), u"7,500000"_s);
    EXPECT_EQ(TextoDe(u"lblTipo5"_s), u"24,000000"_s);
    Cerrar();
    oAnexos().TIPIM(6, 0);
    Abrir(frmZTDeclaracion::kNombre);
    EXPECT_EQ(TextoDe(u"lblTipo6"_s), QString());
}

TEST_F(frmZTDeclaracionTest, From2003OnTheSixthProductHasNoNameAndNoRateButItsFigures) {
    AbrirCon(2003, {{6, 100, 200}});
    EXPECT_EQ(TextoDe(u"lblProducto6"_s), QString());
    EXPECT_EQ(Figuras(6), (QStringList{u"1,00"_s, u"2,00"_s, QString(), u"12,00"_s}));
    EXPECT_EQ(TextoDe(u"lblProducto5"_s), Texto(184));
    EXPECT_EQ(TextoDe(u"lblCuotaTotal"_s), u"12,00"_s);
}

TEST_F(frmZTDeclaracionTest, FiguresStandAtTheRightUnderTheirHeadings) {
    AbrirCon(2007);
    for (const QString& columna : kColumnas) {
        const auto& cabecera = Control<QLabel>(columna);
        EXPECT_TRUE(cabecera.alignment().testFlag(Qt::AlignRight));
        for (int k = 1; k <= 6; ++k) {
            const auto& cifra = Control<QLabel>(columna + QString::number(k));
            EXPECT_TRUE(cifra.alignment().testFlag(Qt::AlignRight));
            EXPECT_EQ(cifra.geometry().right(), cabecera.geometry().right());
            EXPECT_EQ(cifra.y(), Control(u"lblTipo"_s + QString::number(k)).y());
        }
    }
}

TEST_F(frmZTDeclaracionTest, TheAnnexesOpenAfreshAndTheSummaryGoes) {
    for (const bool conTeclas : {false, true}) {
        if (conTeclas) {
            oAnexos().Modificado = true;
            Abrir(frmZTDeclaracion::kNombre);
            Tecla(Qt::Key_A, Qt::AltModifier);
        } else {
            AbrirCon(2007, {{1, 150, 100}});
            oAnexos().Modificado = true;
            Pulsar(u"cmdDetalles"_s);
        }
        EXPECT_FALSE(Abierto(frmZTDeclaracion::kNombre));
        EXPECT_TRUE(Formularios::Visible(frmZTDetDeclaracion::kNombre.toString()));
        EXPECT_EQ(oAnexos().Procedencia, cZTAnexos::kDesdeDeclaracion);
        EXPECT_FALSE(oAnexos().Modificado);
        EXPECT_EQ(oAnexos().BufferAnexos.UltimaFila(), 1);
        Formularios::Descargar(frmZTDetDeclaracion::kNombre.toString());
    }
}

TEST_F(frmZTDeclaracionTest, ClosingGoesBackToTheListByButtonAndByPicture) {
    AbrirCon(2007);
    for (const QString& control : {u"cmdCerrarDec"_s, u"picCerrar"_s}) {
        Abrir(frmZTDeclaracion::kNombre);
        Pulsar(control);
        EXPECT_FALSE(Abierto(frmZTDeclaracion::kNombre));
        EXPECT_TRUE(Formularios::Visible(frmZTListaDeclaraciones::kNombre.toString()));
        EXPECT_EQ(pantalla.punteros.back(), Puntero::Normal);
        Formularios::Descargar(frmZTListaDeclaraciones::kNombre.toString());
    }
}

TEST_F(frmZTDeclaracionTest, ThePictureOfTheAnnexesHasNoClickOfItsOwn) {
    AbrirCon(2007);
    EXPECT_FALSE(Control<QLabel>(u"picDatos"_s).pixmap().isNull());
    Pulsar(u"picDatos"_s);
    EXPECT_TRUE(Abierto(frmZTDeclaracion::kNombre));
}

TEST_F(frmZTDeclaracionTest, TabGoesThroughTheButtonsAndTheAccessKeyOfTheDeclarantGoesToTheFirst) {
    AbrirCon(2007);
    EsperarOrdenDeTab({u"cmdDetalles"_s, u"cmdCerrarDec"_s});
    // A top menu has the same access key, and is off while a declarant is open.
    Deshabilitar_menu();
    IrA(u"cmdCerrarDec"_s);
    Tecla(Qt::Key_L, Qt::AltModifier);
    EXPECT_EQ(Foco(), u"cmdDetalles"_s);
    EXPECT_TRUE(Abierto(frmZTDeclaracion::kNombre));
}

TEST_F(frmZTDeclaracionTest, FiguresThatDoNotAddUpAreToldByALineAndShownAsStored) {
    AbrirCon(2007, {{1, 0, 10000}});
    EXPECT_FALSE(ALaVista(u"lblDescuadre"_s));
    const qint32 csdc = oDeclaraciones().CSDC;
    Cerrar();
    AbrirAlmacen(ClaseAlmacen::Usuario, Entorno().mdbmod)
        ->Base()
        .exec("UPDATE T10_LIQUIDACION SET T10_CUOTA = 777 WHERE T10_PRODUCTO = 1");
    for (const qint16 idioma : {kOffsetCastellano, kOffsetEuskera}) {
        Entorno().OffsetIdioma = idioma;
        AbrirDeclaracion(csdc, 2007, 2);
        Abrir(frmZTDeclaracion::kNombre);
        EXPECT_TRUE(ALaVista(u"lblDescuadre"_s));
        EXPECT_EQ(TextoDe(u"lblDescuadre"_s), TextoPropio(u"declaracion_descuadre"));
        EXPECT_EQ(Control(u"lblDescuadre"_s).accessibleName(), TextoDe(u"lblDescuadre"_s));
        EXPECT_EQ(Figuras(1).back(), u"7,77"_s);
        Cerrar();
    }
    EXPECT_TRUE(pantalla.mensajes.empty());
}
