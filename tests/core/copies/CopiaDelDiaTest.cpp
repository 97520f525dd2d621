#include "core/copies/CopiaDelDia.h"

#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "core/services/svrZELT/cZTGeneral.h"
#include "tests/support/PantallaQueEspera.h"
#include "tests/support/PruebaDeCopias.h"

using namespace Qt::StringLiterals;

namespace {

class CopiaDelDiaTest : public PruebaDeCopias {
  protected:
    void Guardar(const QString& nif) const { (void)GuardarDeclarante(almacen, nif); }
    [[nodiscard]] QStringList Hechas() const {
        return QDir(automaticas()).entryList({u"*.mdb"_s}, QDir::Files, QDir::Name);
    }
    /// Leaves no room for the automatic copies.
    void OcuparSuLugar() const {
        ASSERT_TRUE(QDir(copias()).removeRecursively());
        EscribirFichero(copias(), "no es una carpeta");
    }

    CopiasDePrueba canal;
    const QString delDia = u"ZELTMOD-20070704-090807-000-diaria.mdb"_s;
};

}  // namespace

TEST_F(CopiaDelDiaTest, TheFirstChangeOfADayIsPrecededByACopy) {
    Guardar(u"33333333P"_s);
    EXPECT_EQ(Hechas(), QStringList(delDia));
    EXPECT_EQ(Declarantes(automaticas() + u'/' + delDia), kDosDeclarantes);
    EXPECT_EQ(Declarantes(vivo()), kDosDeclarantes + u" 33333333P"_s);
    Guardar(u"44444444A"_s);
    EXPECT_EQ(Hechas().size(), 1);
}

TEST_F(CopiaDelDiaTest, TheNextDayHasItsOwn) {
    Guardar(u"33333333P"_s);
    canal.ahora = canal.ahora.addDays(1);
    Guardar(u"44444444A"_s);
    EXPECT_EQ(Hechas(), (QStringList{delDia, u"ZELTMOD-20070705-090807-000-diaria.mdb"_s}));
}

TEST_F(CopiaDelDiaTest, AnotherRunOnTheSameDayMakesNone) {
    Guardar(u"33333333P"_s);
    ReiniciarInstancias();
    canal.ahora = canal.ahora.addSecs(3600);
    Guardar(u"44444444A"_s);
    EXPECT_EQ(Hechas(), QStringList(delDia));
}

TEST_F(CopiaDelDiaTest, ReadingAndSettingsMakeNone) {
    (void)almacen.Con<svrZELT::cZTGeneral>().ExisteDec();
    almacen.Con<svrZELT::cZTDatosGeneral>().ModificarIdioma(u"E"_s);
    svrZELT::cZTDatosGeneral ajustes;
    ajustes.mdblec = vivo();
    ajustes.GuardarActOnline(1);
    EXPECT_EQ(Hechas(), QStringList());
}

TEST_F(CopiaDelDiaTest, MoreThanTenDaysLeaveTheLastTen) {
    for (int dia = 0; dia < 12; ++dia) {
        Guardar(QString::number(dia));
        canal.ahora = canal.ahora.addDays(1);
    }
    EXPECT_EQ(Hechas().size(), 10);
    EXPECT_EQ(Hechas().front(), u"ZELTMOD-20070706-090807-000-diaria.mdb"_s);
}

TEST_F(CopiaDelDiaTest, ACopyThatCannotBeMadeStopsNoSaveAndIsToldOnceAfterIt) {
    OcuparSuLugar();
    Guardar(u"33333333P"_s);
    EXPECT_EQ(Declarantes(vivo()), kDosDeclarantes + u" 33333333P"_s);
    ASSERT_EQ(canal.avisos.size(), 1U);
    EXPECT_EQ(canal.avisos.front().motivo, MotivoDeCopia::SinPermiso);
    EXPECT_EQ(canal.avisos.front().fichero, QDir::toNativeSeparators(automaticas()));
    Guardar(u"44444444A"_s);
    EXPECT_EQ(canal.avisos.size(), 1U);
    canal.ahora = canal.ahora.addDays(1);
    Guardar(u"55555555K"_s);
    EXPECT_EQ(canal.avisos.size(), 2U);
}

TEST_F(CopiaDelDiaTest, AStoreThatCannotBeOpenedFailsAsTheWriteWouldAndIsTriedAgain) {
    CerrarAlmacenes();
    const QByteArray entero = LeerFichero(vivo());
    EscribirFichero(vivo(), {});
    EXPECT_EQ(NumeroDelError([&] { Guardar(u"33333333P"_s); }), 3049);
    EXPECT_TRUE(canal.avisos.empty());
    EscribirFichero(vivo(), entero);
    Guardar(u"33333333P"_s);
    EXPECT_EQ(Hechas(), QStringList(delDia));
}

TEST_F(CopiaDelDiaTest, WithoutAChannelThereAreNoCopiesOfTheDay) {
    FijarCopias(nullptr);
    Guardar(u"33333333P"_s);
    EXPECT_EQ(Hechas(), QStringList());
}

TEST_F(CopiaDelDiaTest, ACopyThatCouldNotBeMadeIsTriedAgainAtEachLaterChangeOfTheDay) {
    OcuparSuLugar();
    Guardar(u"33333333P"_s);
    ASSERT_TRUE(QFile::remove(copias()));
    Guardar(u"44444444A"_s);
    EXPECT_EQ(Hechas(), QStringList(delDia));
    EXPECT_EQ(Declarantes(automaticas() + u'/' + delDia), kDosDeclarantes + u" 33333333P"_s);
    Guardar(u"55555555K"_s);
    EXPECT_EQ(Hechas().size(), 1);
    EXPECT_EQ(canal.avisos.size(), 1U);
}

TEST_F(CopiaDelDiaTest, CopyAndWriteShareOneBudgetOfWaiting) {
    // Steps of 25 ms: four fill the budget, and two budgets would take more.
    FijarEsperaDeAlmacen(100);
    (void)almacen.Con<svrZELT::cZTGeneral>().ExisteDec();
    const PantallaQueEspera pantalla;
    SQLite::Database otra(vivo().toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("BEGIN EXCLUSIVE");
    EXPECT_EQ(NumeroDelError([&] { Guardar(u"33333333P"_s); }), 3260);
    EXPECT_GE(pantalla.pasos, 1);
    EXPECT_LE(pantalla.pasos, 4);
    EXPECT_EQ(pantalla.finales, 1);
}

TEST_F(CopiaDelDiaTest, TheEndOfTheProgramCopiesTheFirstDataOnce) {
    const AlmacenTemporal nuevo;
    const QDir carpeta(CarpetaDeCopiasAutomaticas(nuevo.mdbmod()));
    const auto hechas = [&] { return carpeta.entryList({u"*.mdb"_s}, QDir::Files, QDir::Name); };
    CopiarPrimerosDatos(nuevo.mdbmod());
    EXPECT_EQ(hechas(), QStringList()) << "there are no data yet";
    (void)GuardarDeclarante(nuevo, u"33333333P"_s);
    ASSERT_EQ(hechas(), QStringList(delDia));
    EXPECT_EQ(Declarantes(carpeta.filePath(delDia)), QString());
    for (int cierre = 0; cierre < 2; ++cierre) {
        CopiarPrimerosDatos(nuevo.mdbmod());
        ASSERT_EQ(hechas().size(), 2);
        EXPECT_EQ(Declarantes(carpeta.filePath(hechas().back())), u"33333333P"_s);
    }
}

TEST_F(CopiaDelDiaTest, AStoreThatCannotBeReadDoesNotHoldUpTheEnd) {
    CerrarAlmacenes();
    EscribirFichero(vivo(), {});
    CopiarPrimerosDatos(vivo());
    EXPECT_EQ(Hechas(), QStringList());
}
