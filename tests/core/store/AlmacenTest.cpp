#include "core/services/EscrituraDeUsuario.h"
#include "core/store/Almacen.h"

#include <QFile>

#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "core/services/svrZELT/cZTGeneral.h"
#include "core/store/Migracion.h"
#include "tests/support/AlmacenTemporal.h"
#include "tests/support/DiscoSinSitio.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

class AlmacenTest : public testing::Test {
  protected:
    [[nodiscard]] int ErrorAlLeer() const {
        return NumeroDelError([&] { (void)Idioma(); });
    }
    [[nodiscard]] int ErrorAlEscribir() const {
        return NumeroDelError([&] { PonerIdioma(u"E"_s); });
    }
    [[nodiscard]] QString Idioma() const { return m_almacen.Con<svrZELT::cZTDatosGeneral>().ObtenerIdioma(); }
    void PonerIdioma(const QString& idioma) const {
        m_almacen.Con<svrZELT::cZTDatosGeneral>().ModificarIdioma(idioma);
    }
    /// Puts other contents in the place of the store.
    void Sustituir(const QByteArray& contenido) const {
        CerrarAlmacenes();
        QFile::remove(m_almacen.mdbmod());
        EscribirFichero(m_almacen.mdbmod(), contenido);
    }
    [[nodiscard]] QByteArray Contenido() const { return LeerFichero(m_almacen.mdbmod()); }

    AlmacenTemporal m_almacen;
};

}  // namespace

TEST_F(AlmacenTest, AMissingFileIsNotFoundAndIsNotMade) {
    CerrarAlmacenes();
    QFile::remove(m_almacen.mdbmod());
    EXPECT_EQ(ErrorAlLeer(), 3024);
    EXPECT_EQ(ErrorAlEscribir(), 3024);
    EXPECT_FALSE(QFile::exists(m_almacen.mdbmod()));
}

TEST_F(AlmacenTest, AnEmptyPathIsNotFound) {
    EXPECT_EQ(NumeroDelError([] { (void)svrZELT::cZTGeneral().ExisteDec(); }), 3024);
}

TEST_F(AlmacenTest, AFolderInThePlaceOfTheFileMayNotBeOpened) {
    CerrarAlmacenes();
    QFile::remove(m_almacen.mdbmod());
    QDir().mkdir(m_almacen.mdbmod());
    EXPECT_EQ(ErrorAlLeer(), 3051);
}

TEST_F(AlmacenTest, AnEmptyFileIsDamaged) {
    Sustituir({});
    EXPECT_EQ(ErrorAlLeer(), 3049);
    EXPECT_TRUE(Contenido().isEmpty());
}

TEST_F(AlmacenTest, ATextFileIsForeign) {
    const QByteArray texto = QByteArray("clave;valor\r\n").repeated(500);
    Sustituir(texto);
    EXPECT_EQ(ErrorAlLeer(), 3343);
    EXPECT_EQ(ErrorAlEscribir(), 3343);
    EXPECT_EQ(Contenido(), texto);
}

TEST_F(AlmacenTest, TheDatabaseOfAnotherProgramIsForeignAndStaysAsItIs) {
    Sustituir({});
    {
        SQLite::Database otra(m_almacen.mdbmod().toStdString(), SQLite::OPEN_READWRITE);
        otra.exec("CREATE TABLE T00_GENERAL (T00_IDIOMA TEXT)");
    }
    const QByteArray antes = Contenido();
    EXPECT_EQ(ErrorAlLeer(), 3343);
    EXPECT_EQ(ErrorAlEscribir(), 3343);
    EXPECT_EQ(Contenido(), antes);
}

TEST_F(AlmacenTest, TheReferenceStoreIsForeignInThePlaceOfTheUsersStore) {
    Sustituir(LeerFichero(m_almacen.mdblec()));
    EXPECT_EQ(ErrorAlLeer(), 3343);
}

TEST_F(AlmacenTest, TheUsersStoreIsForeignInThePlaceOfTheReferenceStore) {
    svrZELT::cZTDatosGeneral servidor;
    servidor.mdblec = m_almacen.mdbmod();
    EXPECT_EQ(NumeroDelError([&] { (void)servidor.ObtenerNombreProvincia(20, 0); }), 3343);
}

TEST_F(AlmacenTest, AStoreCutShortIsDamagedWhereverItIsCut) {
    CerrarAlmacenes();
    const QByteArray entero = Contenido();
    for (const qsizetype largo : {qsizetype{20}, qsizetype{99}, qsizetype{512}, entero.size() / 2,
                                  entero.size() - 50, entero.size() - 1}) {
        Sustituir(entero.left(largo));
        EXPECT_EQ(ErrorAlLeer(), 3049) << largo;
        EXPECT_EQ(Contenido(), entero.left(largo));
    }
}

TEST_F(AlmacenTest, ANewerStoreIsAnotherVersion) {
    m_almacen.Usuario()->Base().exec("PRAGMA user_version = 2");
    CerrarAlmacenes();
    const QByteArray antes = Contenido();
    EXPECT_EQ(ErrorAlLeer(), 3340);
    EXPECT_EQ(Contenido(), antes);
}

TEST_F(AlmacenTest, AStoreWithoutVersionIsAnotherVersion) {
    m_almacen.Usuario()->Base().exec("PRAGMA user_version = 0");
    CerrarAlmacenes();
    EXPECT_EQ(ErrorAlLeer(), 3340);
}

TEST_F(AlmacenTest, AFailureNamesFileAndCause) {
    Sustituir({});
    const QString texto = DescripcionDelError([&] { (void)Idioma(); });
    EXPECT_EQ(texto, u"El fichero de datos está dañado: "_s + QDir::toNativeSeparators(m_almacen.mdbmod()) +
                         u". El fichero está vacío."_s);
}

TEST_F(AlmacenTest, AWriteWaitsNoLongerThanToldForAnotherProgramAndThenIsBusy) {
    SQLite::Database otra(m_almacen.mdbmod().toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("BEGIN IMMEDIATE");
    EXPECT_EQ(ErrorAlEscribir(), 3260);
    EXPECT_EQ(Idioma(), u""_s);
    otra.exec("ROLLBACK");
    EXPECT_EQ(ErrorAlEscribir(), 0);
}

TEST_F(AlmacenTest, AReadIsBusyWhileAnotherProgramWrites) {
    SQLite::Database otra(m_almacen.mdbmod().toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("BEGIN EXCLUSIVE");
    EXPECT_EQ(ErrorAlLeer(), 3260);
    CerrarAlmacenes();
    EXPECT_EQ(ErrorAlLeer(), 3260) << "also when the connection is only being opened";
}

TEST_F(AlmacenTest, OpeningDoesNotLoseTheLocksOfAnotherConnectionOfTheProcess) {
    SQLite::Database otra(m_almacen.mdbmod().toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("BEGIN IMMEDIATE");
    CerrarAlmacenes();
    (void)Idioma();
    CerrarAlmacenes();
    EXPECT_EQ(ErrorAlEscribir(), 3260);
}

TEST_F(AlmacenTest, AReadOnlyStoreIsReadAndRefusesWrites) {
    m_almacen.Usuario()->Base().exec("PRAGMA query_only = ON");
    EXPECT_EQ(Idioma(), u""_s);
    EXPECT_EQ(ErrorAlEscribir(), 3027);
}

TEST_F(AlmacenTest, AFullDiskLeavesNothingOfAWrite) {
    PonerIdioma(u"C"_s);
    auto almacen = m_almacen.Usuario();
    almacen->Base().exec("PRAGMA max_page_count = 1");
    EXPECT_EQ(NumeroDelError([&] { PonerIdioma(QString(100'000, u'E')); }), 3183);
    EXPECT_EQ(Idioma(), u"C"_s);
    almacen->Base().exec("PRAGMA max_page_count = 100000");
    PonerIdioma(u"E"_s);
    EXPECT_EQ(Idioma(), u"E"_s);
}

TEST_F(AlmacenTest, AFailureInTheMiddleOfAWriteLeavesNothingOfIt) {
    PonerIdioma(u"C"_s);
    EXPECT_EQ(NumeroDelError([&] {
                  EscribirUsuario(m_almacen.mdbmod(), [](Almacen& almacen) {
                      almacen.Base().exec("UPDATE T00_GENERAL SET T00_IDIOMA = 'E'");
                      throw ErrorZT(NumError::NoCoincidenTipos);
                  });
              }),
              13);
    EXPECT_EQ(Idioma(), u"C"_s);
    CerrarAlmacenes();
    EXPECT_EQ(Idioma(), u"C"_s);
}

TEST_F(AlmacenTest, TheConnectionIsKeptBetweenCalls) {
    const auto primera = m_almacen.Usuario();
    PonerIdioma(u"C"_s);
    EXPECT_EQ(m_almacen.Usuario(), primera) << "its own writes do not drop it";
    EXPECT_EQ(Idioma(), u"C"_s);
    EXPECT_EQ(m_almacen.Usuario(), primera);
}

TEST_F(AlmacenTest, AnotherFileUnderTheSameNameIsReadAtOnce) {
    PonerIdioma(u"C"_s);
    const QString otra = m_almacen.mdbPath() + u"otra.mdb"_s;
    EscribirFichero(otra, Contenido());
    PonerIdioma(u"E"_s);
    QFile::remove(m_almacen.mdbmod());
    ASSERT_TRUE(QFile::rename(otra, m_almacen.mdbmod()));
    EXPECT_EQ(Idioma(), u"C"_s);
}

TEST_F(AlmacenTest, AFileOverwrittenInPlaceIsReadAtOnce) {
    PonerIdioma(u"C"_s);
    const QByteArray antes = Contenido();
    PonerIdioma(u"E"_s);
    EscribirFichero(m_almacen.mdbmod(), antes);
    EXPECT_EQ(Idioma(), u"C"_s);
}

TEST_F(AlmacenTest, AReferenceStoreOverwrittenInPlaceIsReadAtOnce) {
    svrZELT::cZTDatosGeneral servidor;
    servidor.mdblec = m_almacen.mdblec();
    EXPECT_EQ(servidor.ObtenerNombreProvincia(20, 0), u"Ondarzia"_s);
    EscribirFichero(m_almacen.mdblec(), LeerFichero(m_almacen.mdblec()).replace("Ondarzia", "ONDARZIA"));
    EXPECT_EQ(servidor.ObtenerNombreProvincia(20, 0), u"ONDARZIA"_s);
}

TEST_F(AlmacenTest, AFileThatIsReplacedDuringAWriteIsNotTakenForTheOneWritten) {
    const QString otra = m_almacen.mdbPath() + u"otra.mdb"_s;
    EscribirFichero(otra, Contenido());
    EscribirUsuario(m_almacen.mdbmod(), [&](Almacen& almacen) {
        almacen.Base().exec("UPDATE T00_GENERAL SET T00_IDIOMA = 'E'");
        QFile::rename(m_almacen.mdbmod(), m_almacen.mdbPath() + u"antes.mdb"_s);
        QFile::rename(otra, m_almacen.mdbmod());
    });
    EXPECT_EQ(Idioma(), QString());
}

TEST_F(AlmacenTest, WritesOfAnotherProgramAreSeen) {
    (void)Idioma();
    SQLite::Database otra(m_almacen.mdbmod().toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("UPDATE T00_GENERAL SET T00_IDIOMA = 'E'");
    EXPECT_EQ(Idioma(), u"E"_s);
}

TEST_F(AlmacenTest, AWriteIsInTheFileWhenTheCallReturns) {
    PonerIdioma(u"E"_s);
    const QString copia = m_almacen.mdbPath() + u"copia.mdb"_s;
    ASSERT_TRUE(QFile::copy(m_almacen.mdbmod(), copia));
    svrZELT::cZTDatosGeneral servidor;
    servidor.mdbmod = copia;
    EXPECT_EQ(servidor.ObtenerIdioma(), u"E"_s);
    EXPECT_EQ(QDir(m_almacen.mdbPath()).entryList({u"*-journal"_s, u"*-wal"_s}), QStringList());
}

TEST_F(AlmacenTest, ConnectionsAreSetUpForDurabilityAndForUntrustedFiles) {
    auto& base = m_almacen.Usuario()->Base();
    EXPECT_STREQ(base.execAndGet("PRAGMA journal_mode").getText(), "delete");
    EXPECT_EQ(base.execAndGet("PRAGMA synchronous").getInt(), 3);
    EXPECT_EQ(base.execAndGet("PRAGMA foreign_keys").getInt(), 1);
    EXPECT_EQ(base.execAndGet("PRAGMA trusted_schema").getInt(), 0);
    EXPECT_EQ(base.execAndGet("PRAGMA cell_size_check").getInt(), 1);
}

TEST_F(AlmacenTest, ATriggerInTheFileDoesNotRun) {
    m_almacen.Usuario()->Base().exec(
        "CREATE TRIGGER ajeno AFTER UPDATE ON T00_GENERAL BEGIN UPDATE T00_GENERAL SET T00_ACTONLINE = 9; "
        "END");
    PonerIdioma(u"E"_s);
    EXPECT_EQ(m_almacen.Usuario()->Base().execAndGet("SELECT T00_ACTONLINE FROM T00_GENERAL").getInt(), -1);
}

TEST_F(AlmacenTest, TheReferenceStoreIsNeverWritten) {
    const auto almacen = AbrirAlmacen(ClaseAlmacen::Referencia, m_almacen.mdblec());
    EXPECT_THROW(almacen->Base().exec("DELETE FROM T02_Provincias"), SQLite::Exception);
    EXPECT_THROW(almacen->Base().exec("PRAGMA user_version = 7"), SQLite::Exception);
}

TEST_F(AlmacenTest, PathsWithBlanksAccentsAndSignsOfAddressesWork) {
    const QString carpeta = m_almacen.mdbPath() + u"Año 100% ¿qué? #1 & más"_s;
    ASSERT_TRUE(QDir().mkdir(carpeta));
    ASSERT_TRUE(QFile::copy(m_almacen.mdblec(), carpeta + u"/ZELTLEC.mdb"_s));
    ASSERT_TRUE(QFile::copy(m_almacen.mdbmod(), carpeta + u"/ZELTMOD.mdb"_s));
    svrZELT::cZTDatosGeneral servidor;
    servidor.mdblec = carpeta + u"/ZELTLEC.mdb"_s;
    servidor.mdbmod = carpeta + u"/ZELTMOD.mdb"_s;
    EXPECT_EQ(servidor.ObtenerNombreProvincia(20, 0), u"Ondarzia"_s);
    EXPECT_EQ(servidor.ObtenerIdioma(), u""_s);
}

TEST_F(AlmacenTest, AWriteThatFindsNoRoomAtWhateverCallIsAFullDisk) {
    bool negado = true;
    int fallos = 0;
    for (int dejadas = 0; negado; ++dejadas) {
        PonerIdioma(u"C"_s);
        int numero = 0;
        {
            const DiscoSinSitio disco(dejadas);
            numero = ErrorAlEscribir();
            negado = disco.Negado();
        }
        if (numero != 0) {
            ++fallos;
            EXPECT_EQ(numero, 3183) << dejadas;
        }
    }
    EXPECT_GT(fallos, 3);
    EXPECT_EQ(Idioma(), u"E"_s);
}

TEST_F(AlmacenTest, AStoreForWhichThereIsNoRoomAtWhateverCallIsAFullDisk) {
    const QString ruta = m_almacen.mdbPath() + u"NUEVO.mdb"_s;
    bool negado = true;
    for (int dejadas = 0; negado; ++dejadas) {
        QFile::remove(ruta);
        int numero = 0;
        {
            const DiscoSinSitio disco(dejadas);
            numero = NumeroDelError([&ruta] { CrearAlmacenDeUsuario(ruta); });
            negado = disco.Negado();
        }
        EXPECT_TRUE(numero == 0 || numero == 61 || numero == 3183) << dejadas << ": " << numero;
        EXPECT_EQ(QFile::exists(ruta), numero == 0) << dejadas;
    }
}
