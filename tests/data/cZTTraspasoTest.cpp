#include "data/svrZELT/cZTTraspaso.h"

#include <QFile>

#include "data/svrZELT/cZTDatosGeneral.h"
#include "tests/support/AlmacenTemporal.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

class cZTTraspasoTest : public testing::Test {
  protected:
    [[nodiscard]] svrZELT::cZTTraspaso Servidor() const {
        svrZELT::cZTTraspaso servidor;
        servidor.mdbmod = m_almacen.mdbmod();
        servidor.mdbPath = m_almacen.mdbPath();
        return servidor;
    }
    [[nodiscard]] bool Traspaso() const { return Servidor().Traspaso(); }
    [[nodiscard]] int Error() const {
        return NumeroDelError([&] { (void)Traspaso(); });
    }
    void Quitar() const {
        CerrarAlmacenes();
        QFile::remove(m_almacen.mdbmod());
    }
    /// Expects `numero` from a file of these contents, and the file untouched.
    void EsperarRechazo(const QByteArray& contenido, int numero) const {
        Quitar();
        EscribirFichero(m_almacen.mdbmod(), contenido);
        const EstadoFichero antes = ExaminarFichero(m_almacen.mdbmod());
        EXPECT_EQ(Error(), numero);
        EXPECT_EQ(ExaminarFichero(m_almacen.mdbmod()), antes);
        EXPECT_EQ(LeerFichero(m_almacen.mdbmod()), contenido);
    }
    [[nodiscard]] QStringList Ficheros() const {
        return QDir(m_almacen.mdbPath()).entryList(QDir::Files | QDir::NoDotAndDotDot, QDir::Name);
    }

    AlmacenTemporal m_almacen;
};

}  // namespace

TEST_F(cZTTraspasoTest, AFreshInstallationGetsAStoreAndNothingElse) {
    Quitar();
    EXPECT_FALSE(Traspaso());
    EXPECT_EQ(Ficheros(), (QStringList{u"ZELTLEC.mdb"_s, u"ZELTMOD.mdb"_s}));
    EXPECT_EQ(m_almacen.Con<svrZELT::cZTDatosGeneral>().ObtenerIdioma(), QString());
}

TEST_F(cZTTraspasoTest, AStoreThatIsUpToDateIsNotTouched) {
    m_almacen.Con<svrZELT::cZTDatosGeneral>().ModificarIdioma(u"E"_s);
    const EstadoFichero antes = ExaminarFichero(m_almacen.mdbmod());
    EXPECT_FALSE(Traspaso());
    EXPECT_EQ(ExaminarFichero(m_almacen.mdbmod()), antes);
    EXPECT_EQ(m_almacen.Con<svrZELT::cZTDatosGeneral>().ObtenerIdioma(), u"E"_s);
}

TEST_F(cZTTraspasoTest, EmptyForeignAndShortFilesAreRefusedUntouched) {
    const QByteArray entero = LeerFichero(m_almacen.mdbmod());
    EsperarRechazo({}, 3049);
    EsperarRechazo("no es una base de datos", 3343);
    EsperarRechazo(LeerFichero(m_almacen.mdblec()), 3343);
    EsperarRechazo(entero.left(50), 3049);
    EsperarRechazo(entero.left(entero.size() - 4096), 3049);
}

TEST_F(cZTTraspasoTest, ANewerStoreIsRefusedUntouchedAndTheMessageSaysWhy) {
    m_almacen.Usuario()->Base().exec("PRAGMA user_version = 7");
    const QByteArray nuevo = LeerFichero(m_almacen.mdbmod());
    EsperarRechazo(nuevo, 3340);
    const QString texto = DescripcionDelError([&] { (void)Traspaso(); });
    EXPECT_TRUE(texto.contains(QDir::toNativeSeparators(m_almacen.mdbmod())));
    EXPECT_TRUE(texto.contains(u"versión 7, más nueva"_s));
}

TEST_F(cZTTraspasoTest, AStoreWithDamagedPagesIsRefusedUntouched) {
    const QByteArray entero = LeerFichero(m_almacen.mdbmod());
    for (int pagina = 1; pagina < entero.size() / 4096; ++pagina) {
        QByteArray roto = entero;
        roto.replace(qsizetype{4096} * pagina, 64, QByteArray(64, '\x5A'));
        EsperarRechazo(roto, 3049);
    }
}

TEST_F(cZTTraspasoTest, AStoreWithAnotherStructureIsRefusedUntouched) {
    m_almacen.Usuario()->Base().exec("CREATE TABLE ajena (a)");
    EsperarRechazo(LeerFichero(m_almacen.mdbmod()), 3049);
}

TEST_F(cZTTraspasoTest, AStoreWithRowsThatReferToMissingOnesIsRefusedUntouched) {
    auto& base = m_almacen.Usuario()->Base();
    base.exec("PRAGMA foreign_keys = OFF");
    base.exec("INSERT INTO T07_DECLARACIONES (T07_CSDE, T07_EJERCICIO, T07_PERIODO) VALUES (5, 2010, 1)");
    EsperarRechazo(LeerFichero(m_almacen.mdbmod()), 3049);
}

TEST_F(cZTTraspasoTest, AFolderInThePlaceOfTheFileStays) {
    Quitar();
    QDir().mkdir(m_almacen.mdbmod());
    EXPECT_EQ(Error(), 3051);
    EXPECT_TRUE(QDir(m_almacen.mdbmod()).exists());
}

TEST_F(cZTTraspasoTest, AMissingFolderIsToldAndNotMade) {
    auto servidor = Servidor();
    servidor.mdbmod = m_almacen.mdbPath() + u"falta/ZELTMOD.mdb"_s;
    EXPECT_EQ(NumeroDelError([&] { (void)servidor.Traspaso(); }), 76);
    EXPECT_FALSE(QDir(m_almacen.mdbPath() + u"falta"_s).exists());
}

TEST_F(cZTTraspasoTest, ALinkThatPointsNowhereIsNotReplaced) {
    Quitar();
    ASSERT_TRUE(QFile::link(m_almacen.mdbPath() + u"falta.mdb"_s, m_almacen.mdbmod()));
    EXPECT_EQ(Error(), 3024);
    EXPECT_TRUE(QFile(m_almacen.mdbmod()).symLinkTarget().endsWith(u"falta.mdb"_s));
    EXPECT_FALSE(QFile::exists(m_almacen.mdbPath() + u"falta.mdb"_s));
}

TEST_F(cZTTraspasoTest, TheJournalOfALostStoreDoesNotReachTheFreshOne) {
    Quitar();
    const QString resto = m_almacen.mdbmod() + u"-journal"_s;
    EscribirFichero(resto, QByteArray(2048, '\x7F'));
    EXPECT_FALSE(Traspaso());
    EXPECT_FALSE(QFile::exists(resto));
    EXPECT_EQ(LeerFichero(resto + u".1.apartado"_s), QByteArray(2048, '\x7F'));
    EXPECT_EQ(Error(), 0);
}

TEST_F(cZTTraspasoTest, AStoreThatAnotherProgramHoldsIsBusy) {
    SQLite::Database otra(m_almacen.mdbmod().toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("BEGIN EXCLUSIVE");
    EXPECT_EQ(Error(), 3260);
}
