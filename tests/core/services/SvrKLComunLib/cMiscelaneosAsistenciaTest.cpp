// What the common library gives of the authority: its name, its assistance, the description of it.

#include "core/services/SvrKLComunLib/cMiscelaneos.h"

#include <SQLiteCpp/Database.h>

#include "tests/support/AlmacenTemporal.h"
#include "tests/support/AsistenciaDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

class cMiscelaneosAsistenciaTest : public testing::Test {
  protected:
    [[nodiscard]] SvrKLComunLib::cMiscelaneos En(qint16 idioma) const {
        SvrKLComunLib::cMiscelaneos miscelaneos;
        miscelaneos.idioma = idioma;
        miscelaneos.mdblec = m_almacen.mdblec();
        return miscelaneos;
    }

    AlmacenTemporal m_almacen;
    AsistenciaDePrueba m_asistencia;
};

}  // namespace

TEST_F(cMiscelaneosAsistenciaTest, TheDepartmentHasItsNameInBothLanguages) {
    EXPECT_EQ(En(1000).HaciendaFiscalidad(), u"Ogasun eta Finantza Departamentua"_s);
    EXPECT_EQ(En(0).HaciendaFiscalidad(), u"Departamento de Hacienda y Finanzas"_s);
}

TEST_F(cMiscelaneosAsistenciaTest, TheAssistanceIsOpenedAtTheAddressOfTheStoreInTheLanguage) {
    En(0).AccesoAyuOnline();
    En(1000).AccesoAyuOnline();
    EXPECT_EQ(m_asistencia.abiertas,
              QStringList({u"https://servicios.ondarzia.example/asistencia?idioma=c"_s,
                           u"https://servicios.ondarzia.example/asistencia?idioma=e"_s}));
    EXPECT_TRUE(m_asistencia.infos.isEmpty());
}

TEST_F(cMiscelaneosAsistenciaTest, TheLanguageIsAddedToTheQueryThatTheAddressHas) {
    {
        SQLite::Database base(m_almacen.mdblec().toStdString(), SQLite::OPEN_READWRITE);
        base.exec(
            "UPDATE T01_DATOS SET T01_VALOR = 'https://a.example/s?canal=z%26a' "
            "WHERE T01_CLAVE = 'URLAsistencia'");
    }
    En(1000).AccesoAyuOnline();
    EXPECT_EQ(m_asistencia.abiertas, QStringList{u"https://a.example/s?canal=z%26a&idioma=e"_s});
}

TEST_F(cMiscelaneosAsistenciaTest, TheDescriptionHasItsOwnPageInEachLanguageAndIsModalToTheParent) {
    SvrKLComunLib::cMiscelaneos castellano = En(0);
    castellano.Parent = 4711;
    castellano.MostrarOnlineInfo();
    En(1000).MostrarOnlineInfo();
    EXPECT_EQ(m_asistencia.infos,
              QStringList({u"0 https://www.ondarzia.example/es/asistencia-on-line 4711"_s,
                           u"1000 https://www.ondarzia.example/eu/on-line-laguntza 0"_s}));
    EXPECT_TRUE(m_asistencia.abiertas.isEmpty());
}

TEST_F(cMiscelaneosAsistenciaTest, WithoutTheStoreNothingIsGiven) {
    SvrKLComunLib::cMiscelaneos miscelaneos;
    miscelaneos.mdblec = m_almacen.mdbPath() + u"no.mdb"_s;
    EXPECT_NE(NumeroDelError([&] { (void)miscelaneos.HaciendaFiscalidad(); }), 0);
    EXPECT_NE(NumeroDelError([&] { miscelaneos.AccesoAyuOnline(); }), 0);
    EXPECT_NE(NumeroDelError([&] { miscelaneos.MostrarOnlineInfo(); }), 0);
    EXPECT_TRUE(m_asistencia.abiertas.isEmpty());
}
