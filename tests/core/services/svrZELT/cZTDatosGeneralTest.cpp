#include "core/services/svrZELT/cZTDatosGeneral.h"

#include <limits>

#include "tests/support/AlmacenTemporal.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

namespace {

class cZTDatosGeneralTest : public testing::Test {
  protected:
    cZTDatosGeneralTest() { m_servidor.mdblec = m_almacen.mdblec(); }

    /// The server as it is fed for the update setting: the user's store under the property `mdblec`.
    [[nodiscard]] svrZELT::cZTDatosGeneral DeAjustes() const {
        svrZELT::cZTDatosGeneral servidor;
        servidor.mdblec = m_almacen.mdbmod();
        return servidor;
    }

    AlmacenTemporal m_almacen;
    svrZELT::cZTDatosGeneral m_servidor;
};

}  // namespace

TEST_F(cZTDatosGeneralTest, TheFiveListsRunAsTheyStandWithRowsFromZero) {
    struct Lista {
        QString sql;
        bool numerica;
    };
    for (const Lista& lista :
         {Lista{u"Select T03_CODIGO, T03_CAS From T03_SIGLASVIA ORDER BY T03_CAS"_s, false},
          Lista{u"Select T03_CODIGO, T03_EUS From T03_SIGLASVIA ORDER BY T03_EUS"_s, false},
          Lista{u"Select T04_CODMUN, T04_NOMMUN From T04_MUNICIPIOS Order By T04_NOMMUN"_s, true},
          Lista{u"Select T02_PROID, T02_PROCAS From T02_Provincias Order By T02_PROCAS"_s, true},
          Lista{u"Select T02_PROID, T02_PROEUS From T02_Provincias Order By T02_PROEUS"_s, true}}) {
        Tabla buffer;
        m_servidor.CargarResultado(lista.sql, buffer);
        ASSERT_FALSE(buffer.EsNula()) << lista.sql.toStdString();
        EXPECT_EQ(buffer.UltimaColumna(), 1);
        EXPECT_GT(buffer.UltimaFila(), 10);
        EXPECT_EQ(buffer(0, 0).EsNumerico(), lista.numerica) << lista.sql.toStdString();
        EXPECT_FALSE(buffer(1, 0).aTexto().isEmpty());
    }
}

TEST_F(cZTDatosGeneralTest, ListsAreOrderedAsANameIsLookedUp) {
    Tabla buffer;
    m_servidor.CargarResultado(u"Select T02_PROID, T02_PROCAS From T02_Provincias Order By T02_PROCAS"_s,
                               buffer);
    QStringList nombres;
    for (int fila = 0; fila <= buffer.UltimaFila(); ++fila) {
        nombres += buffer(1, fila).aTexto();
    }
    EXPECT_LT(nombres.indexOf(u"Asturias"_s), nombres.indexOf(u"Ávila"_s));
    EXPECT_LT(nombres.indexOf(u"Ávila"_s), nombres.indexOf(u"Badajoz"_s));
}

TEST_F(cZTDatosGeneralTest, NamesComeInTheLanguageOfTheOffset) {
    EXPECT_EQ(m_servidor.ObtenerNombreProvincia(20, 0), u"Ondarzia"_s);
    EXPECT_EQ(m_servidor.ObtenerNombreProvincia(1, 0), u"Araba/Álava"_s);
    EXPECT_EQ(m_servidor.ObtenerNombreProvincia(1, 1000), u"Araba"_s);
    EXPECT_EQ(m_servidor.ObtenerNombreCalle(u"CL"_s, 0), u"CALLE"_s);
    EXPECT_EQ(m_servidor.ObtenerNombreCalle(u"CL"_s, 1000), u"KALEA"_s);
}

TEST_F(cZTDatosGeneralTest, AMunicipalityHasOneNameForBothLanguages) {
    const QString nombre = m_servidor.ObtenerNombreMunicipio(1, 0);
    EXPECT_FALSE(nombre.isEmpty());
    EXPECT_EQ(m_servidor.ObtenerNombreMunicipio(1, 1000), nombre);
}

TEST_F(cZTDatosGeneralTest, AnUnknownCodeHasTheEmptyName) {
    for (const qint16 codigo : {qint16{0}, qint16{-1}, qint16{99}, std::numeric_limits<qint16>::max()}) {
        EXPECT_EQ(m_servidor.ObtenerNombreProvincia(codigo, 0), QString());
    }
    EXPECT_EQ(m_servidor.ObtenerNombreMunicipio(0, 1000), QString());
    EXPECT_EQ(m_servidor.ObtenerNombreCalle(u""_s, 0), QString());
    EXPECT_EQ(m_servidor.ObtenerNombreCalle(u"'; --"_s, 0), QString());
}

TEST_F(cZTDatosGeneralTest, GeneralDataAreTheLimitsOfYearsAndQuarters) {
    Registro datos;
    m_servidor.CargarDatosGenerales(datos);
    EXPECT_EQ(datos, (Registro{qint16{2002}, qint16{1}, qint16{2012}, qint16{4}}));
}

TEST_F(cZTDatosGeneralTest, RatesComeInMillionthsByProduct) {
    const auto tasas = m_servidor.CargarTipImp(2010, 3);
    ASSERT_TRUE(tasas.has_value());
    EXPECT_EQ(*tasas, (Registro{24e6, 24e6, 6e6, 1e6, 24e6, 6e6}));
}

TEST_F(cZTDatosGeneralTest, AQuarterThatNoIntervalCoversHasNoRates) {
    EXPECT_TRUE(m_servidor.CargarTipImp(2002, 1).has_value());
    EXPECT_TRUE(m_servidor.CargarTipImp(2012, 4).has_value());
    EXPECT_FALSE(m_servidor.CargarTipImp(2001, 4).has_value());
    EXPECT_FALSE(m_servidor.CargarTipImp(2013, 1).has_value());
    EXPECT_FALSE(m_servidor.CargarTipImp(0, 0).has_value());
    EXPECT_FALSE(m_servidor.CargarTipImp(2010, 0).has_value());
    EXPECT_FALSE(m_servidor.CargarTipImp(2010, 5).has_value());
    EXPECT_FALSE(m_servidor.CargarTipImp(-32768, -32768).has_value());
}

TEST_F(cZTDatosGeneralTest, TheAddressOfTheUpdateServiceIsThatOfTheReferenceStore) {
    EXPECT_TRUE(m_servidor.URLAct().startsWith(u"https://"_s));
}

TEST_F(cZTDatosGeneralTest, AFreshStoreHasAnUndecidedUpdateSettingAndNoLanguage) {
    EXPECT_EQ(DeAjustes().ObtenerActOnline(), -1);
    EXPECT_EQ(m_almacen.Con<svrZELT::cZTDatosGeneral>().ObtenerIdioma(), QString());
}

TEST_F(cZTDatosGeneralTest, TheUpdateSettingIsKeptInTheStoreWhosePathIsGiven) {
    const auto servidor = DeAjustes();
    for (const qint16 valor : {qint16{1}, qint16{0}, qint16{-1}, std::numeric_limits<qint16>::min()}) {
        servidor.GuardarActOnline(valor);
        CerrarAlmacenes();
        EXPECT_EQ(DeAjustes().ObtenerActOnline(), valor);
    }
    EXPECT_EQ(NumeroDelError([&] { m_servidor.GuardarActOnline(1); }), 3343)
        << "the reference store takes no settings";
}

TEST_F(cZTDatosGeneralTest, StoringTheLanguageThatStandsLeavesTheFileAlone) {
    const auto servidor = m_almacen.Con<svrZELT::cZTDatosGeneral>();
    servidor.ModificarIdioma(u"E"_s);
    const EstadoFichero antes = ExaminarFichero(m_almacen.mdbmod());
    servidor.ModificarIdioma(u"E"_s);
    EXPECT_EQ(ExaminarFichero(m_almacen.mdbmod()), antes);
}

TEST_F(cZTDatosGeneralTest, BothOperationsOfTheLanguageStoreIt) {
    const auto servidor = m_almacen.Con<svrZELT::cZTDatosGeneral>();
    servidor.ModificarIdioma(u"E"_s);
    EXPECT_EQ(servidor.ObtenerIdioma(), u"E"_s);
    servidor.CambiarIdioma(u"C"_s);
    EXPECT_EQ(servidor.ObtenerIdioma(), u"C"_s);
    servidor.ModificarIdioma(QString());
    EXPECT_EQ(servidor.ObtenerIdioma(), QString());
}

RC_GTEST_FIXTURE_PROP(cZTDatosGeneralTest, AnyLanguageTextComesBackAsItWasStored,
                      (const std::u16string& texto)) {
    const QString idioma = QString::fromUtf8(QString::fromStdU16String(texto).toUtf8());
    const auto servidor = m_almacen.Con<svrZELT::cZTDatosGeneral>();
    servidor.ModificarIdioma(idioma);
    RC_ASSERT(servidor.ObtenerIdioma() == idioma);
}

TEST_F(cZTDatosGeneralTest, AStoreWithoutItsGeneralRowIsDamaged) {
    m_almacen.Usuario()->Base().exec("DELETE FROM T00_GENERAL");
    EXPECT_EQ(NumeroDelError([&] { (void)DeAjustes().ObtenerActOnline(); }), 3049);
}

TEST_F(cZTDatosGeneralTest, ThousandsOfLookUpsUseOneConnection) {
    const auto almacen = AbrirAlmacen(ClaseAlmacen::Referencia, m_almacen.mdblec());
    for (int i = 0; i < 10'000; ++i) {
        svrZELT::cZTDatosGeneral servidor;
        servidor.mdblec = m_almacen.mdblec();
        ASSERT_EQ(servidor.ObtenerNombreProvincia(20, 0), u"Ondarzia"_s);
    }
    EXPECT_EQ(AbrirAlmacen(ClaseAlmacen::Referencia, m_almacen.mdblec()), almacen);
}
