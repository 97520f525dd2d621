#include "core/records/cZTNuevaDec.h"

#include "core/records/ListaDeTrimestres.h"
#include "core/records/cZTListaDeclaraciones.h"
#include "core/run/Textos.h"
#include "tests/support/EntornoDeDeclaraciones.h"

using namespace Qt::StringLiterals;

namespace {

class cZTNuevaDecTest : public EntornoDeDeclaraciones {
  protected:
    /// Makes that the latest declaration of the list, after an older one.
    static void LaUltimaEs(const Valor& ejercicio, const Valor& periodo) {
        Tabla lista(3, 2);
        lista(1, 1) = qint16{2002};
        lista(2, 1) = qint16{1};
        lista(1, 2) = ejercicio;
        lista(2, 2) = periodo;
        oListaDeclaraciones().BufferDeclaraciones = lista;
    }
    static void LaUltimaEs(qint16 ejercicio, qint16 periodo) { LaUltimaEs(Valor(ejercicio), Valor(periodo)); }

    /// Year and quarter that are proposed, from others than these.
    static std::pair<int, int> Propuesta() {
        oNuevaDec().Ejercicio = 7;
        oNuevaDec().Periodo = 7;
        oNuevaDec().Sugerencia();
        return {oNuevaDec().Ejercicio, oNuevaDec().Periodo};
    }

    static void Elegir(qint16 ejercicio, qint16 periodo) {
        oNuevaDec().Ejercicio = ejercicio;
        oNuevaDec().Periodo = periodo;
    }

    /// The one notice that has been shown, with one button and the title of both checks.
    [[nodiscard]] QString Aviso() const {
        EXPECT_EQ(pantalla.mensajes.size(), 1U);
        EXPECT_TRUE(pantalla.mensajes.at(0).unBoton);
        EXPECT_EQ(pantalla.mensajes.at(0).titulo, Texto(83));
        return pantalla.mensajes.at(0).texto;
    }
};

class TrimestresGrabados : public ListaDeTrimestres {
  public:
    void Limpiar() override { pasos.push_back(u"Limpiar"_s); }
    void LimpiarColumnas() override { pasos.push_back(u"LimpiarColumnas"_s); }
    [[nodiscard]] int Ancho() const override { return 2000; }
    void AnadirColumna(const QString& texto, int ancho) override {
        pasos.push_back(u"columna "_s + texto + u' ' + QString::number(ancho));
    }
    void PermitirReordenarColumnas() override { pasos.push_back(u"reordenar"_s); }
    void Anadir(const QString& clave, const QString& texto) override {
        pasos.push_back(clave + u'=' + texto);
    }

    std::vector<QString> pasos;
};

}  // namespace

TEST_F(cZTNuevaDecTest, InitializingForgetsYearAndQuarterAndKeepsTheKey) {
    Elegir(2007, 2);
    oNuevaDec().CSDC = 5;
    oNuevaDec().InicializaDatos();
    EXPECT_EQ(oNuevaDec().Ejercicio, 0);
    EXPECT_EQ(oNuevaDec().Periodo, 0);
    EXPECT_EQ(oNuevaDec().CSDC, 5);
}

TEST_F(cZTNuevaDecTest, AllFourQuartersAreOfferedInOneColumn) {
    TrimestresGrabados lista;
    oNuevaDec().CargaPeriodos(lista);
    EXPECT_EQ(lista.pasos, (std::vector<QString>{
                               u"Limpiar"_s, u"LimpiarColumnas"_s, u"columna periodo 1760"_s, u"reordenar"_s,
                               u"c11º Trimestre=1º Trimestre"_s, u"c22º Trimestre=2º Trimestre"_s,
                               u"c33º Trimestre=3º Trimestre"_s, u"c44º Trimestre=4º Trimestre"_s}));
}

TEST_F(cZTNuevaDecTest, AFailureToFillTheListClimbsUnderItsFixedName) {
    Entorno().OffsetIdioma = 5000;
    TrimestresGrabados lista;
    const QString descripcion = DescripcionDelError([&] { oNuevaDec().CargaPeriodos(lista); });
    EXPECT_TRUE(descripcion.startsWith(u"cNuevaDec.CargaPeriodos\r\nGeneral.DameStringPeriodo\r\n"_s));
}

TEST_F(cZTNuevaDecTest, AQuarterIsTakenByItsNameInTheLanguageInForce) {
    oNuevaDec().ObtPeriodo(u"3º Trimestre"_s);
    EXPECT_EQ(oNuevaDec().Periodo, 3);
    Entorno().OffsetIdioma = 1000;
    oNuevaDec().ObtPeriodo(u"2. hiruhilekoa"_s);
    EXPECT_EQ(oNuevaDec().Periodo, 2);
    EXPECT_EQ(NumeroDelError([] { oNuevaDec().ObtPeriodo(u"3º Trimestre"_s); }), 13);
    EXPECT_EQ(oNuevaDec().Periodo, 2);
}

TEST_F(cZTNuevaDecTest, WithoutDeclarationsTheProposalLeavesTheFieldsAsTheyWere) {
    EXPECT_EQ(Propuesta(), std::pair(7, 7));
    oNuevaDec().InicializaDatos();
    oNuevaDec().Sugerencia();
    EXPECT_EQ(oNuevaDec().Ejercicio, 0);
    EXPECT_EQ(oNuevaDec().Periodo, 0);
}

TEST_F(cZTNuevaDecTest, TheQuarterAfterTheLatestDeclarationIsProposed) {
    for (qint16 p = 1; p <= 3; ++p) {
        LaUltimaEs(2007, p);
        EXPECT_EQ(Propuesta(), std::pair(2007, p + 1));
    }
}

TEST_F(cZTNuevaDecTest, AfterTheFourthQuarterTheFirstOfTheNextYearIsProposed) {
    LaUltimaEs(2007, 4);
    EXPECT_EQ(Propuesta(), std::pair(2008, 1));
    LaUltimaEs(2011, 4);
    EXPECT_EQ(Propuesta(), std::pair(2012, 1));
}

TEST_F(cZTNuevaDecTest, AfterTheFourthQuarterOfTheLastYearNothingIsProposed) {
    LaUltimaEs(2012, 4);
    EXPECT_EQ(Propuesta(), std::pair(0, 0));
}

TEST_F(cZTNuevaDecTest, AQuarterAfterTheLastAcceptedOneIsProposedAndPasses) {
    Entorno().PeriodoMaximo = 2;
    LaUltimaEs(2012, 3);
    EXPECT_EQ(Propuesta(), std::pair(2012, 4));
    EXPECT_TRUE(oNuevaDec().ValidarDatos());
}

TEST_F(cZTNuevaDecTest, AfterADeclarationOutsideTheAcceptedYearsNothingIsProposed) {
    LaUltimaEs(2001, 2);
    EXPECT_EQ(Propuesta(), std::pair(0, 0));
    LaUltimaEs(2001, 4);
    EXPECT_EQ(Propuesta(), std::pair(0, 0));
    LaUltimaEs(2013, 1);
    EXPECT_EQ(Propuesta(), std::pair(0, 0));
    LaUltimaEs(2002, 1);
    EXPECT_EQ(Propuesta(), std::pair(2002, 2));
}

TEST_F(cZTNuevaDecTest, TheLatestDeclarationIsReadWithoutItsBlanks) {
    LaUltimaEs(u" 2007 "_s, u" 1 "_s);
    EXPECT_EQ(Propuesta(), std::pair(2007, 2));
}

TEST_F(cZTNuevaDecTest, AListThatIsNoNumberFailsUnderTheFixedNameAndChangesNothing) {
    LaUltimaEs(u"dos mil"_s, u"1"_s);
    Elegir(7, 7);
    const QString descripcion = DescripcionDelError([] { oNuevaDec().Sugerencia(); });
    EXPECT_EQ(descripcion, u"cNuevaDec.Sugerencia\r\n"_s + TextoDeError(NumError::NoCoincidenTipos));
    EXPECT_EQ(oNuevaDec().Ejercicio, 7);
    EXPECT_EQ(oNuevaDec().Periodo, 7);
}

TEST_F(cZTNuevaDecTest, AnAcceptedYearIsTakenOnce) {
    EXPECT_EQ(oNuevaDec().ComprobarEjercicio(u"2002"_s), CambioDeEjercicio::Tomado);
    EXPECT_EQ(oNuevaDec().Ejercicio, 2002);
    EXPECT_EQ(oNuevaDec().ComprobarEjercicio(u"2002"_s), CambioDeEjercicio::Ninguno);
    EXPECT_EQ(oNuevaDec().ComprobarEjercicio(u"2012"_s), CambioDeEjercicio::Tomado);
    EXPECT_EQ(oNuevaDec().Ejercicio, 2012);
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(cZTNuevaDecTest, AYearAfterTheLastOneIsRefused) {
    oNuevaDec().Ejercicio = 2007;
    EXPECT_EQ(oNuevaDec().ComprobarEjercicio(u"2013"_s), CambioDeEjercicio::Rechazado);
    EXPECT_EQ(oNuevaDec().Ejercicio, 0);
    EXPECT_EQ(Aviso(), u"El ejercicio debe ser igual o anterior al año 2012"_s);
}

TEST_F(cZTNuevaDecTest, AYearBeforeTheFirstOneIsRefused) {
    oNuevaDec().Ejercicio = 2007;
    EXPECT_EQ(oNuevaDec().ComprobarEjercicio(u"2001"_s), CambioDeEjercicio::Rechazado);
    EXPECT_EQ(oNuevaDec().Ejercicio, 0);
    EXPECT_EQ(Aviso(), u"El ejercicio debe ser igual o superior al año 2002"_s);
}

TEST_F(cZTNuevaDecTest, InEuskeraTheYearStandsInFrontOfTheNotice) {
    Entorno().OffsetIdioma = 1000;
    (void)oNuevaDec().ComprobarEjercicio(u"2013"_s);
    EXPECT_EQ(Aviso(), u"Ekitaldia 2012 urtea baino lehenagokoa izan behar da"_s);
    pantalla.mensajes.clear();
    (void)oNuevaDec().ComprobarEjercicio(u"0999"_s);
    EXPECT_EQ(Aviso(), u"Ekitaldia 2002 urtea baino beranduagokoa izan behar da"_s);
}

TEST_F(cZTNuevaDecTest, AShorterYearIsTakenWithoutALookAtTheLimitsAndPasses) {
    EXPECT_EQ(oNuevaDec().ComprobarEjercicio(u"200"_s), CambioDeEjercicio::Tomado);
    EXPECT_EQ(oNuevaDec().Ejercicio, 200);
    EXPECT_EQ(oNuevaDec().ComprobarEjercicio(u"200"_s), CambioDeEjercicio::Tomado);
    EXPECT_TRUE(pantalla.mensajes.empty());
    oNuevaDec().Periodo = 1;
    EXPECT_TRUE(oNuevaDec().ValidarDatos());
}

TEST_F(cZTNuevaDecTest, AnEmptyYearBoxIsYear0) {
    oNuevaDec().Ejercicio = 2007;
    EXPECT_EQ(oNuevaDec().ComprobarEjercicio(QString()), CambioDeEjercicio::Tomado);
    EXPECT_EQ(oNuevaDec().Ejercicio, 0);
}

TEST_F(cZTNuevaDecTest, AQuarterAfterTheLastOfTheLastYearIsRefused) {
    Entorno().PeriodoMaximo = 2;
    Elegir(2012, 0);
    EXPECT_FALSE(oNuevaDec().ValidarPeriodo(u"3º Trimestre"_s));
    EXPECT_EQ(Aviso(), u"El periodo máximo pare este año es el 2º Trimestre"_s);
    EXPECT_EQ(oNuevaDec().Periodo, 0);
}

TEST_F(cZTNuevaDecTest, TheLastQuarterCountsInTheLastYearOnly) {
    Entorno().PeriodoMaximo = 2;
    Elegir(2012, 0);
    EXPECT_TRUE(oNuevaDec().ValidarPeriodo(u"2º Trimestre"_s));
    Elegir(2011, 0);
    EXPECT_TRUE(oNuevaDec().ValidarPeriodo(u"4º Trimestre"_s));
    EXPECT_TRUE(pantalla.mensajes.empty());
}

TEST_F(cZTNuevaDecTest, AYearTakenAfterTheQuarterIsNotComparedWithTheLastQuarter) {
    Entorno().PeriodoMaximo = 2;
    Elegir(2011, 4);
    EXPECT_EQ(oNuevaDec().ComprobarEjercicio(u"2012"_s), CambioDeEjercicio::Tomado);
    EXPECT_TRUE(oNuevaDec().ValidarDatos());
}

TEST_F(cZTNuevaDecTest, AMissingYearAndQuarterAreTwoFaults) {
    EXPECT_FALSE(oNuevaDec().ValidarDatos());
    ASSERT_EQ(pantalla.listas.size(), 1U);
    const Tabla& lista = pantalla.listas.front();
    ASSERT_EQ(lista.UltimaFila(), 1);
    EXPECT_EQ(lista(0, 0), Valor(qint16{1}));
    EXPECT_EQ(lista(1, 0), Valor(qint16{11}));
    EXPECT_EQ(lista(0, 1), Valor(qint16{2}));
    EXPECT_EQ(lista(1, 1), Valor(qint16{12}));
}

TEST_F(cZTNuevaDecTest, TheStoreIsAskedEvenForYear0AndQuarter0) {
    NuevaDeclaracion(0, 0);
    EXPECT_FALSE(oNuevaDec().ValidarDatos());
    const Tabla& lista = pantalla.listas.at(0);
    ASSERT_EQ(lista.UltimaFila(), 2);
    EXPECT_EQ(lista(0, 2), Valor(qint16{5}));
    EXPECT_EQ(lista(1, 2), Valor(qint16{13}));
}

TEST_F(cZTNuevaDecTest, ASecondDeclarationOfTheQuarterIsRefused) {
    NuevaDeclaracion(2007, 2);
    Elegir(2007, 2);
    EXPECT_FALSE(oNuevaDec().ValidarDatos());
    const Tabla& lista = pantalla.listas.at(0);
    EXPECT_EQ(lista.UltimaFila(), 0);
    EXPECT_EQ(lista(1, 0), Valor(qint16{13}));

    Elegir(2007, 3);
    EXPECT_TRUE(oNuevaDec().ValidarDatos());
    // Another declarant's declarations do not count.
    Elegir(2007, 2);
    ++oDeclarante().CSDE;
    EXPECT_TRUE(oNuevaDec().ValidarDatos());
}

TEST_F(cZTNuevaDecTest, TheDeclarationIsMadeWithTheRatesInForceAndNoFigures) {
    Elegir(2007, 2);
    const qint32 csdc = oNuevaDec().GuardarDeclaracion();
    EXPECT_GT(csdc, 0);
    const Registro fila = Servidor().CargarDeclaracion(csdc);
    EXPECT_EQ(fila.at(1), Valor(oDeclarante().CSDE));
    EXPECT_EQ(fila.at(2), Valor(qint16{2007}));
    EXPECT_EQ(fila.at(3), Valor(qint16{2}));
    std::size_t elemento = 4;
    for (const double tasa : kTasasEnVigor) {
        EXPECT_EQ(fila.at(elemento), Valor(0.0));
        EXPECT_EQ(fila.at(elemento + 1), Valor(0.0));
        EXPECT_EQ(fila.at(elemento + 2), Valor(tasa * 1'000'000));
        EXPECT_EQ(fila.at(elemento + 3), Valor(0.0));
        elemento += 4;
    }
}

TEST_F(cZTNuevaDecTest, AQuarterWithoutRatesMakesNoDeclaration) {
    Elegir(2013, 1);
    const QString descripcion = DescripcionDelError([] { (void)oNuevaDec().GuardarDeclaracion(); });
    EXPECT_EQ(descripcion, u"cNuevaDec.GuardarDeclaracion\r\n"_s + TextoDeError(NumError::NoCoincidenTipos));
    EXPECT_EQ(Servidor().NumeroDeclaraciones(oDeclarante().CSDE), 0);
}

TEST_F(cZTNuevaDecTest, AFailureOfTheStoreClimbsThroughTheFixedNames) {
    PerderElAlmacen();
    Elegir(2007, 2);
    EXPECT_TRUE(DescripcionDelError([] {
                    (void)oNuevaDec().ValidarDatos();
                }).startsWith(u"cNuevaDec.ValidarDatos\r\ncNuevaDec.DecDuplicadas\r\n"_s));
    EXPECT_TRUE(DescripcionDelError([] {
                    (void)oNuevaDec().GuardarDeclaracion();
                }).startsWith(u"cNuevaDec.GuardarDeclaracion\r\n"_s));
    EXPECT_TRUE(pantalla.listas.empty());
    EXPECT_TRUE(pantalla.errores.empty());
}
