#include "tools/generador/Generador.h"

#include <QTemporaryDir>
#include <map>

#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "core/store/Almacen.h"
#include "core/store/DatosGenerales.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"
#include "tools/generador/FicheroTsv.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto kTipos = "PRODUCTO\tEJERCICIO_DESDE\tPERIODO_DESDE\tEJERCICIO_HASTA\tPERIODO_HASTA\tTIPO\n";
constexpr auto kGenerales =
    "CLAVE\tVALOR\nEjercicioMinimo\t2002\nPeriodoMinimo\t2\nEjercicioMaximo\t2003\nPeriodoMaximo\t3\n"
    "DepartamentoCas\tHacienda\nDepartamentoEus\tOgasuna\nURLAct\thttps://a.example/v\n"
    "URLAsistencia\thttps://a.example/s\nURLInfoCas\thttps://a.example/c\nURLInfoEus\thttps://a.example/e\n"
    "VersionDatos\t3\n";

class GeneradorTest : public testing::Test {
  public:
    ~GeneradorTest() override { CerrarAlmacenes(); }

  protected:
    GeneradorTest() {
        m_ficheros["provincias"] = "T02_PROID\tT02_PROCAS\tT02_PROEUS\n20\tOndarzia\tOndarzia\n";
        m_ficheros["siglas_via"] = "T03_CODIGO\tT03_CAS\tT03_EUS\nCL\tCALLE\tKALEA\n";
        m_ficheros["municipios"] = "T04_CODMUN\tT04_NOMMUN\n1\tAbarzelai\n";
        m_ficheros["tipos"] = kTipos;
        for (const char producto : QByteArray("123456")) {
            Tipo(producto + QByteArray("\t2002\t1\t2002\t4\t24.000000"));
            Tipo(producto + QByteArray("\t2003\t1\t2003\t4\t0.50000") + producto);
        }
        m_ficheros["generales"] = kGenerales;
    }

    void Tipo(const QByteArray& fila) { m_ficheros["tipos"] += fila + '\n'; }
    void Cambiar(const char* fichero, const char* de, const char* a) {
        ASSERT_TRUE(m_ficheros[fichero].contains(de));
        m_ficheros[fichero].replace(de, a);
    }
    void Generar() const {
        for (const auto& [nombre, contenido] : m_ficheros) {
            EscribirFichero(m_carpeta.filePath(QString::fromLatin1(nombre) + u".tsv"_s), contenido);
        }
        GenerarReferencia(m_destino, m_carpeta.path(), m_carpeta.filePath(u"generales.tsv"_s));
    }
    /// Text of the fault, empty when there is none.
    [[nodiscard]] QString Falla() const {
        try {
            Generar();
        } catch (const FallaTsv& falla) {
            return QString::fromUtf8(falla.what());
        }
        return {};
    }
    [[nodiscard]] svrZELT::cZTDatosGeneral Servidor() const {
        svrZELT::cZTDatosGeneral servidor;
        servidor.mdblec = m_destino;
        return servidor;
    }

    QTemporaryDir m_carpeta;
    QString m_destino = m_carpeta.filePath(u"Tablas/ZELTLEC.mdb"_s);
    std::map<QByteArray, QByteArray> m_ficheros;
};

}  // namespace

TEST_F(GeneradorTest, TheStoreHoldsWhatTheTablesSay) {
    ASSERT_EQ(Falla(), QString());
    EXPECT_EQ(Servidor().ObtenerNombreProvincia(20, 1000), u"Ondarzia"_s);
    EXPECT_EQ(Servidor().ObtenerNombreCalle(u"CL"_s, 1000), u"KALEA"_s);
    EXPECT_EQ(Servidor().ObtenerNombreMunicipio(1, 0), u"Abarzelai"_s);
    EXPECT_EQ(Servidor().URLAct(), u"https://a.example/v"_s);
    EXPECT_EQ(VersionDeReferencia(m_destino), 3);
}

TEST_F(GeneradorTest, ARateIsThatOfTheIntervalOfTheQuarter) {
    ASSERT_EQ(Falla(), QString());
    EXPECT_EQ(Servidor().CargarTipImp(2002, 4), (Registro{24e6, 24e6, 24e6, 24e6, 24e6, 24e6}));
    EXPECT_EQ(Servidor().CargarTipImp(2003, 1),
              (Registro{500'001.0, 500'002.0, 500'003.0, 500'004.0, 500'005.0, 500'006.0}));
    EXPECT_FALSE(Servidor().CargarTipImp(2004, 1).has_value());
}

TEST_F(GeneradorTest, AProductWithoutRateInACoveredQuarterHasZero) {
    Tipo("2\t2009\t1\t2009\t1\t3.000000");
    ASSERT_EQ(Falla(), QString());
    EXPECT_EQ(Servidor().CargarTipImp(2009, 1), (Registro{0.0, 3e6, 0.0, 0.0, 0.0, 0.0}));
}

TEST_F(GeneradorTest, AFileIsMadeAnewOverTheOldOne) {
    ASSERT_EQ(Falla(), QString());
    Cambiar("generales", "VersionDatos\t3", "VersionDatos\t4");
    ASSERT_EQ(Falla(), QString());
    EXPECT_EQ(VersionDeReferencia(m_destino), 4);
}

TEST_F(GeneradorTest, TheSameTablesGiveTheSameBytes) {
    Generar();
    const QByteArray primero = LeerFichero(m_destino);
    Generar();
    EXPECT_EQ(LeerFichero(m_destino), primero);
}

TEST_F(GeneradorTest, AFaultNamesFileAndLineAndLeavesNoStore) {
    m_ficheros["municipios"] += "x\tAgerlekuain\n";
    EXPECT_TRUE(Falla().contains(u"municipios.tsv:3:"_s));
    EXPECT_FALSE(QFile::exists(m_destino));
}

TEST_F(GeneradorTest, AKeyStandsOnce) {
    m_ficheros["provincias"] += "020\tOtra\tBeste\n";
    EXPECT_TRUE(Falla().contains(u"provincias.tsv:3:"_s));
}

TEST_F(GeneradorTest, CodesOfWaysHaveTwoCharacters) {
    m_ficheros["siglas_via"] += "PLZ\tPLAZA\tPLAZA\n";
    EXPECT_TRUE(Falla().contains(u"siglas_via.tsv:3:"_s));
}

TEST_F(GeneradorTest, GeneralDataAreAllThereAndKnownAndSound) {
    Cambiar("generales", "PeriodoMinimo\t2\n", "");
    EXPECT_TRUE(Falla().contains(u"PeriodoMinimo"_s));
    m_ficheros["generales"] = QByteArray(kGenerales) + "Otro\t1\n";
    EXPECT_TRUE(Falla().contains(u"generales.tsv:13:"_s));
    for (const auto& [de, a] : std::initializer_list<std::pair<const char*, const char*>>{
             {"PeriodoMaximo\t3", "PeriodoMaximo\t5"},
             {"EjercicioMinimo\t2002", "EjercicioMinimo\tdos"},
             {"VersionDatos\t3", "VersionDatos\t0"},
             {"https://a.example/v", "@ZELT_URL_ACTUALIZACION@"}}) {
        m_ficheros["generales"] = kGenerales;
        Cambiar("generales", de, a);
        EXPECT_TRUE(Falla().contains(u"generales.tsv:"_s)) << a;
    }
}

TEST_F(GeneradorTest, IntervalsOfAProductDoNotOverlapNorRunBackwards) {
    Tipo("3\t2003\t4\t2005\t1\t1.000000");
    EXPECT_TRUE(Falla().contains(u"tipos.tsv:14:"_s));
    m_ficheros["tipos"].chop(static_cast<int>(sizeof("3\t2003\t4\t2005\t1\t1.000000")));
    Tipo("3\t2006\t4\t2006\t3\t1.000000");
    EXPECT_TRUE(Falla().contains(u"tipos.tsv:14:"_s));
}

TEST_F(GeneradorTest, EveryProductHasARateInEveryAcceptedQuarter) {
    Cambiar("generales", "EjercicioMaximo\t2003", "EjercicioMaximo\t2004");
    EXPECT_TRUE(Falla().contains(u"product 1 has no rate in quarter 20041"_s));
}
