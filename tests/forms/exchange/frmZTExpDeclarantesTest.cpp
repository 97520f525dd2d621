#include "forms/exchange/frmZTExpDeclarantes.h"

#include "core/exchange/cZTExportaciones.h"
#include "core/run/Textos.h"
#include "forms/exchange/frmZTFicheroAExportar.h"
#include "forms/widgets/Colocacion.h"
#include "tests/support/PruebaDeIntercambio.h"

using namespace Qt::StringLiterals;

namespace {

const QString kExistentes = u"lsvDeclarantes"_s;
const QString kAExportar = u"lsvDeclarantesExp"_s;

class frmZTExpDeclarantesTest : public PruebaDeIntercambio {
  protected:
    /// Three declarants whose orders by NIF and of storing differ.
    void AbrirConTres() {
        for (const auto& [nif, nombre] :
             {std::pair{u"B1"_s, u"MEDIO"_s}, {u"C1"_s, u"ALTO"_s}, {u"A1"_s, u"ZUBI"_s}}) {
            claves[nif] = Guardar(nif, nombre);
        }
        Abrir(frmZTExpDeclarantes::kNombre);
    }
    [[nodiscard]] QStringList NIFs(const QString& lista) const {
        QStringList nifs;
        for (int i = 1; i <= Lista(lista).Cuenta(); ++i) {
            nifs += Lista(lista).Subitem(i, 1);
        }
        return nifs;
    }
    [[nodiscard]] QStringList Existentes() const { return NIFs(kExistentes); }
    [[nodiscard]] QStringList Elegidos() const { return NIFs(kAExportar); }
    /// Names of the buttons that are on.
    [[nodiscard]] QStringList Encendidos() const {
        QStringList nombres;
        for (const QString& boton :
             {u"cmdUnoF"_s, u"cmdTodosF"_s, u"cmdUnoB"_s, u"cmdTodosB"_s, u"cmdAceptar"_s, u"picAceptar"_s}) {
            if (Control(boton).isEnabled()) {
                nombres += boton;
            }
        }
        return nombres;
    }
    static bool Abierto() { return Formularios::Cargado(frmZTExpDeclarantes::kNombre.toString()); }

    QMap<QString, qint32> claves;
};

}  // namespace

TEST_F(frmZTExpDeclarantesTest, CaptionsAreInTheLanguageInForce) {
    Guardar(u"A1"_s, u"UNO"_s);
    for (const qint16 idioma : {qint16{0}, qint16{1000}}) {
        Entorno().OffsetIdioma = idioma;
        Abrir(frmZTExpDeclarantes::kNombre);
        EXPECT_EQ(formulario->windowTitle(), TextoDeFila(15 + idioma));
        for (const auto& [control, texto] : {std::pair{u"lblDecExis"_s, 31},
                                             {u"lblDecAExp"_s, 157},
                                             {u"cmdAceptar"_s, 28},
                                             {u"cmdCancelar"_s, 29},
                                             {u"lblCol1"_s, 35},
                                             {u"lblCol2"_s, 36}}) {
            EXPECT_EQ(TextoDe(control), TextoDeFila(texto + idioma)) << control.toStdString();
        }
        for (const QString& lista : {kExistentes, kAExportar}) {
            EXPECT_EQ(Lista(lista).ClaveColumna(1), u"Clave"_s);
            EXPECT_EQ(Lista(lista).ClaveColumna(2), TextoDeFila(35 + idioma));
            EXPECT_EQ(Lista(lista).ClaveColumna(3), TextoDeFila(36 + idioma));
            EXPECT_EQ(Lista(lista).AnchoColumna(2), TwipsAPixeles(1800, Lista(lista)));
            EXPECT_GE(Lista(lista).AnchoColumna(3), TwipsAPixeles(4000, Lista(lista)));
        }
        Formularios::Descargar(frmZTExpDeclarantes::kNombre.toString());
    }
}

TEST_F(frmZTExpDeclarantesTest, AllDeclarantsAreOnOfferAndTheUnusedFirstRowIsNot) {
    AbrirConTres();
    EXPECT_EQ(Existentes(), QStringList({u"A1"_s, u"B1"_s, u"C1"_s}));
    EXPECT_TRUE(Elegidos().isEmpty());
    EXPECT_EQ(Lista(kExistentes).Texto(1), QString::number(claves[u"A1"_s]));
    EXPECT_EQ(Lista(kExistentes).Subitem(1, 2), u"ZUBI"_s);
    EXPECT_EQ(Lista(kExistentes).Seleccionado(), 1);
    EXPECT_TRUE(Lista(kExistentes).Marcado(1));
    EXPECT_FALSE(MenusHabilitados());
}

TEST_F(frmZTExpDeclarantesTest, TheFirstRowIsNotSelectedWhenItSaysThatThereAreNoDeclarants) {
    Guardar(u"A1"_s, Texto(155));
    Abrir(frmZTExpDeclarantes::kNombre);
    EXPECT_FALSE(Lista(kExistentes).Marcado(1));
}

TEST_F(frmZTExpDeclarantesTest, AStoreEmptiedMeanwhileIsShownUnderItsFixedName) {
    Abrir(frmZTExpDeclarantes::kNombre);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"frmNotExpDeclarantes.RellenarLista"_s);
    EXPECT_TRUE(Encendidos().isEmpty());
}

TEST_F(frmZTExpDeclarantesTest, AcceptIsOffUntilADeclarantIsChosen) {
    AbrirConTres();
    EXPECT_EQ(Encendidos(), QStringList({u"cmdUnoF"_s, u"cmdTodosF"_s}));
    Pulsar(u"cmdUnoF"_s);
    EXPECT_EQ(Encendidos(), QStringList({u"cmdUnoF"_s, u"cmdTodosF"_s, u"cmdUnoB"_s, u"cmdTodosB"_s,
                                         u"cmdAceptar"_s, u"picAceptar"_s}));
    Pulsar(u"cmdTodosF"_s);
    EXPECT_EQ(Encendidos(), QStringList({u"cmdUnoB"_s, u"cmdTodosB"_s, u"cmdAceptar"_s, u"picAceptar"_s}));
    Pulsar(u"cmdTodosB"_s);
    EXPECT_EQ(Encendidos(), QStringList({u"cmdUnoF"_s, u"cmdTodosF"_s}));
}

TEST_F(frmZTExpDeclarantesTest, TheButtonsMoveTheSelectedOnesBothWaysAndTheListThatTakesThemIsOrdered) {
    AbrirConTres();
    PulsarElemento(kExistentes, 3);
    Pulsar(u"cmdUnoF"_s);
    EXPECT_EQ(Elegidos(), QStringList{u"C1"_s});
    PulsarElemento(kExistentes, 1);
    Pulsar(u"cmdUnoF"_s);
    EXPECT_EQ(Existentes(), QStringList{u"B1"_s});
    EXPECT_EQ(Elegidos(), QStringList({u"A1"_s, u"C1"_s}));
    EXPECT_EQ(Lista(kAExportar).Subitem(1, 2), u"ZUBI"_s);
    EXPECT_EQ(Foco(), kAExportar);
    PulsarElemento(kAExportar, 1);
    Pulsar(u"cmdUnoB"_s);
    EXPECT_EQ(Existentes(), QStringList({u"A1"_s, u"B1"_s}));
    EXPECT_EQ(Elegidos(), QStringList{u"C1"_s});
    EXPECT_EQ(Foco(), kExistentes);
}

TEST_F(frmZTExpDeclarantesTest, SeveralSelectedOnesMoveAtOnce) {
    AbrirConTres();
    IrA(kExistentes);
    Tecla(Qt::Key_Down, Qt::ShiftModifier);
    Pulsar(u"cmdUnoF"_s);
    EXPECT_EQ(Existentes(), QStringList{u"C1"_s});
    EXPECT_EQ(Elegidos(), QStringList({u"A1"_s, u"B1"_s}));
}

TEST_F(frmZTExpDeclarantesTest, AllMoveWithoutLossOrRepetition) {
    AbrirConTres();
    Pulsar(u"cmdUnoF"_s);
    Pulsar(u"cmdTodosF"_s);
    EXPECT_TRUE(Existentes().isEmpty());
    EXPECT_EQ(Elegidos(), QStringList({u"A1"_s, u"B1"_s, u"C1"_s}));
    PulsarElemento(kAExportar, 2);
    Pulsar(u"cmdUnoB"_s);
    Pulsar(u"cmdTodosB"_s);
    EXPECT_EQ(Existentes(), QStringList({u"A1"_s, u"B1"_s, u"C1"_s}));
    EXPECT_TRUE(Elegidos().isEmpty());
}

TEST_F(frmZTExpDeclarantesTest, InAFilledListThatNobodyTouchedTheFirstOneIsSelected) {
    AbrirConTres();
    Pulsar(u"cmdTodosF"_s);
    Pulsar(u"cmdUnoB"_s);
    EXPECT_EQ(Existentes(), QStringList{u"A1"_s});
    EXPECT_EQ(Elegidos(), QStringList({u"B1"_s, u"C1"_s}));
    Pulsar(u"cmdTodosB"_s);
    IrA(kExistentes);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Elegidos(), QStringList{u"A1"_s});
}

TEST_F(frmZTExpDeclarantesTest, ADoubleClickMovesItsItemBothWays) {
    AbrirConTres();
    PulsarDosVeces(kExistentes, 2);
    EXPECT_EQ(Existentes(), QStringList({u"A1"_s, u"C1"_s}));
    EXPECT_EQ(Elegidos(), QStringList{u"B1"_s});
    PulsarDosVeces(kAExportar, 1);
    EXPECT_EQ(Existentes(), QStringList({u"A1"_s, u"B1"_s, u"C1"_s}));
    EXPECT_TRUE(Elegidos().isEmpty());
}

TEST_F(frmZTExpDeclarantesTest, EnterMovesOneAfterTheOtherFromWhereTheFocusStays) {
    AbrirConTres();
    IrA(kExistentes);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Elegidos(), QStringList{u"A1"_s});
    EXPECT_EQ(Foco(), kExistentes);
    Tecla(Qt::Key_Enter);
    EXPECT_EQ(Elegidos(), QStringList({u"A1"_s, u"B1"_s}));
    Tecla(Qt::Key_Return);
    EXPECT_TRUE(Existentes().isEmpty());
    Tecla(Qt::Key_Return);
    EXPECT_EQ(Elegidos().size(), 3);
}

TEST_F(frmZTExpDeclarantesTest, TheArrowStandsOverTheHeadingOfTheOrderedList) {
    AbrirConTres();
    EXPECT_FALSE(SeVe(u"picOrden"_s));
    const auto borde = [this](const QString& control) {
        const QWidget& w = Control(control);
        return w.mapTo(formulario, QPoint(w.width(), w.height() / 2));
    };
    Pulsar(u"cmdUnoF"_s);
    EXPECT_TRUE(SeVe(u"picOrden"_s));
    EXPECT_NEAR(borde(u"picOrden"_s).x(), borde(u"lblColExp1"_s).x(), 2);
    EXPECT_NEAR(borde(u"picOrden"_s).y(), borde(u"lblColExp1"_s).y(), 2);
    Pulsar(u"cmdTodosB"_s);
    EXPECT_NEAR(borde(u"picOrden"_s).x(), borde(u"lblCol1"_s).x(), 2);
}

TEST_F(frmZTExpDeclarantesTest, AcceptPassesTheKeysInTheOrderOfTheListAndAsksForTheFile) {
    AbrirConTres();
    PulsarDosVeces(kExistentes, 2);
    PulsarDosVeces(kExistentes, 1);
    Pulsar(u"picAceptar"_s);
    EXPECT_EQ(oExportaciones().vBufferDtes, (Registro{claves[u"A1"_s], claves[u"B1"_s]}));
    EXPECT_FALSE(Abierto());
    EXPECT_TRUE(Formularios::Visible(frmZTFicheroAExportar::kNombre.toString()));
    EXPECT_FALSE(MenusHabilitados());
}

TEST_F(frmZTExpDeclarantesTest, CancelLeavesAndEnablesTheMenus) {
    AbrirConTres();
    Pulsar(u"cmdCancelar"_s);
    EXPECT_FALSE(Abierto());
    EXPECT_TRUE(MenusHabilitados());
}

TEST_F(frmZTExpDeclarantesTest, ItIsWorkedByKeyboardAlone) {
    AbrirConTres();
    QStringList paradas;
    for (int i = 0; i < 5; ++i) {
        paradas += Foco();
        Tecla(Qt::Key_Tab);
    }
    EXPECT_EQ(paradas,
              QStringList({kExistentes, u"cmdUnoF"_s, u"cmdTodosF"_s, kAExportar, u"cmdCancelar"_s}));
    IrA(u"cmdTodosF"_s);
    Tecla(Qt::Key_Space);
    EXPECT_EQ(Elegidos().size(), 3);
    Tecla(Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(Formularios::Visible(frmZTFicheroAExportar::kNombre.toString()));
}
