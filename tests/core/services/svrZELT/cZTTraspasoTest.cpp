#include "core/services/svrZELT/cZTTraspaso.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>

#include "core/copies/CopiasAutomaticas.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"
#include "core/store/FalloAlmacen.h"
#include "tests/support/AlmacenTemporal.h"
#include "tests/support/CopiasDePrueba.h"
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

TEST_F(cZTTraspasoTest, AStoreThatIsCutByAFewBytesIsRefusedUntouched) {
    const QByteArray entero = LeerFichero(m_almacen.mdbmod());
    for (const int bytes : {1, 50, 4095}) {
        EsperarRechazo(entero.chopped(bytes), 3049);
    }
}

TEST_F(cZTTraspasoTest, AStoreWhoseGeneralRowIsDamagedIsRefusedUntouched) {
    auto& base = m_almacen.Usuario()->Base();
    const int pagina =
        base.execAndGet("SELECT rootpage FROM sqlite_schema WHERE name = 'T00_GENERAL'").getInt();
    CerrarAlmacenes();
    QByteArray roto = LeerFichero(m_almacen.mdbmod());
    roto.replace(qsizetype{4096} * (pagina - 1), 64, QByteArray(64, '\x5A'));
    EsperarRechazo(roto, 3049);
}

TEST_F(cZTTraspasoTest, AStoreWithAnotherStructureIsRefusedUntouched) {
    m_almacen.Usuario()->Base().exec("CREATE TABLE ajena (a)");
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

namespace {

/// The same with a user who is asked.
class cZTTraspasoConDialogoTest : public cZTTraspasoTest {
  protected:
    void SetUp() override {
        m_almacen.Con<svrZELT::cZTDatosGeneral>().ModificarIdioma(u"E"_s);
        m_automatica = HacerCopiaAutomatica(m_almacen.Usuario()->Base(), m_almacen.mdbmod(), Ocasion::Diaria,
                                            m_canal.ahora.addDays(-1));
        CerrarAlmacenes();
    }
    /// Expects the file to be refused for that reason, and the program to end with it untouched.
    void EsperarFinal(const QByteArray& contenido, MotivoDeCopia motivo) {
        Quitar();
        EscribirFichero(m_almacen.mdbmod(), contenido);
        m_canal.rechazos.clear();
        EXPECT_TRUE(Traspaso());
        ASSERT_EQ(m_canal.rechazos.size(), 1U);
        EXPECT_EQ(m_canal.rechazos.front().motivo, motivo);
        EXPECT_EQ(m_canal.rechazos.front().fichero, QDir::toNativeSeparators(m_almacen.mdbmod()));
        EXPECT_EQ(LeerFichero(m_almacen.mdbmod()), contenido);
    }

    CopiasDePrueba m_canal;
    QString m_automatica;
};

/// The rights of a user without privileges, for its life, where the tests have those of the administrator.
class SinPrivilegios {
  public:
    SinPrivilegios() : m_antes(::geteuid()) { (void)::seteuid(m_antes == 0 ? kNadie : m_antes); }
    ~SinPrivilegios() { (void)::seteuid(m_antes); }
    SinPrivilegios(const SinPrivilegios&) = delete;
    SinPrivilegios& operator=(const SinPrivilegios&) = delete;

  private:
    static constexpr uid_t kNadie = 65534;
    uid_t m_antes;
};

}  // namespace

TEST_F(cZTTraspasoConDialogoTest, EachRefusedFileIsToldWithItsReasonAndEndingIsTrue) {
    const QByteArray entero = LeerFichero(m_almacen.mdbmod());
    QByteArray nuevo = entero;
    nuevo.replace(60, 4, QByteArray("\0\0\0\x07", 4));
    EsperarFinal({}, MotivoDeCopia::Vacio);
    EsperarFinal("no es una base de datos", MotivoDeCopia::Ajeno);
    EsperarFinal(entero.left(entero.size() / 2), MotivoDeCopia::Danado);
    EsperarFinal(nuevo, MotivoDeCopia::Version);
}

TEST_F(cZTTraspasoConDialogoTest, AGoodStoreAsksNothing) {
    EXPECT_FALSE(Traspaso());
    EXPECT_TRUE(m_canal.rechazos.empty());
}

TEST_F(cZTTraspasoConDialogoTest, GoingBackToAnAutomaticCopyGoesOnAndKeepsTheRefusedFile) {
    EscribirFichero(m_almacen.mdbmod(), "no es una base de datos");
    m_canal.alPedirVuelta = [this](TareaDeVuelta& tarea) {
        EXPECT_EQ(tarea.Copias().size(), 1U);
        EXPECT_EQ(tarea.Copias().front().ruta, m_automatica);
        EXPECT_EQ(tarea.Copias().front().idioma, u"E"_s);
        EXPECT_FALSE(tarea.Volver(m_automatica, [](int) {}));
        return true;
    };
    EXPECT_FALSE(Traspaso());
    EXPECT_EQ(m_canal.rechazos.size(), 1U);
    EXPECT_EQ(m_almacen.Con<svrZELT::cZTDatosGeneral>().ObtenerIdioma(), u"E"_s);
    EXPECT_EQ(LeerFichero(m_almacen.mdbmod() + u".1.rechazado"_s), "no es una base de datos");
    EXPECT_TRUE(QFile::exists(m_automatica));
}

TEST_F(cZTTraspasoConDialogoTest, WhereTheStoreIsMissingItsCopiesAreOfferedBeforeAnEmptyOneIsMade) {
    Quitar();
    m_canal.alPedirVuelta = [this](TareaDeVuelta& tarea) {
        EXPECT_EQ(tarea.Rechazo().motivo, MotivoDeCopia::NoExiste);
        EXPECT_FALSE(QFile::exists(m_almacen.mdbmod()));
        EXPECT_EQ(tarea.Copias().size(), 1U);
        EXPECT_FALSE(tarea.Volver(m_automatica, [](int) {}));
        return true;
    };
    EXPECT_FALSE(Traspaso());
    EXPECT_EQ(m_canal.rechazos.size(), 1U);
    EXPECT_EQ(m_almacen.Con<svrZELT::cZTDatosGeneral>().ObtenerIdioma(), u"E"_s);
}

TEST_F(cZTTraspasoConDialogoTest, WhoDoesNotWantTheCopiesOfAMissingStoreStartsWithAnEmptyOne) {
    Quitar();
    EXPECT_FALSE(Traspaso());
    EXPECT_EQ(m_canal.rechazos.size(), 1U);
    EXPECT_EQ(m_almacen.Con<svrZELT::cZTDatosGeneral>().ObtenerIdioma(), QString());
    EXPECT_TRUE(QFile::exists(m_automatica));
}

TEST_F(cZTTraspasoConDialogoTest, WhereNoSoundCopyIsThereAMissingStoreIsMadeWithoutAsking) {
    Quitar();
    EscribirFichero(m_automatica, "no es una base de datos");
    EXPECT_FALSE(Traspaso());
    EXPECT_TRUE(m_canal.rechazos.empty());
}

TEST_F(cZTTraspasoConDialogoTest, AStoreWhoseHeaderIsDamagedIsToldSoAndItsCopiesAreOffered) {
    constexpr qsizetype kFormatoDeEscritura = 18;
    constexpr qsizetype kFormatoDeEsquema = 47;
    const QByteArray entero = LeerFichero(m_almacen.mdbmod());
    m_canal.alPedirVuelta = [](TareaDeVuelta& tarea) {
        EXPECT_EQ(tarea.Copias().size(), 1U);
        return false;
    };
    for (const qsizetype lugar : {kFormatoDeEscritura, kFormatoDeEsquema}) {
        QByteArray roto = entero;
        roto[lugar] = '\x7F';
        EsperarFinal(roto, MotivoDeCopia::Danado);
    }
}

namespace {

struct OtraCosa {
    MotivoDeCopia motivo;
    const char* palabra;
    /// Puts it at a path.
    void (*poner)(const QByteArray& ruta);
};

constexpr OtraCosa kOtrasCosas[]{
    {MotivoDeCopia::EsCarpeta, "carpeta", [](const QByteArray& ruta) { (void)::mkdir(ruta, 0700); }},
    {MotivoDeCopia::EsTuberia, "tubería", [](const QByteArray& ruta) { (void)::mkfifo(ruta, 0600); }},
    {MotivoDeCopia::EsDispositivo, "dispositivo",
     [](const QByteArray& ruta) { (void)::symlink("/dev/zero", ruta); }},
    {MotivoDeCopia::EsBucleDeEnlaces, "enlace", [](const QByteArray& ruta) { (void)::symlink(ruta, ruta); }},
    {MotivoDeCopia::EsConector, "conector", [](const QByteArray& ruta) {
         sockaddr_un direccion{};
         direccion.sun_family = AF_UNIX;
         std::copy(ruta.begin(), ruta.end(), std::begin(direccion.sun_path));
         const int conector = ::socket(AF_UNIX, SOCK_STREAM, 0);
         (void)::bind(conector, reinterpret_cast<const sockaddr*>(&direccion), sizeof direccion);
         ::close(conector);
     }}};

}  // namespace

TEST_F(cZTTraspasoConDialogoTest, WhatIsNoFileIsNamedItsCopiesAreOfferedAndItIsSetAside) {
    for (const OtraCosa& cosa : kOtrasCosas) {
        SCOPED_TRACE(cosa.palabra);
        Quitar();
        QFile::remove(m_almacen.mdbmod() + u".1.rechazado"_s);
        QDir().rmdir(m_almacen.mdbmod() + u".1.rechazado"_s);
        cosa.poner(QFile::encodeName(m_almacen.mdbmod()));
        m_canal.rechazos.clear();
        m_canal.alPedirVuelta = [this](TareaDeVuelta& tarea) {
            EXPECT_EQ(tarea.Copias().size(), 1U);
            EXPECT_FALSE(tarea.Volver(m_automatica, [](int) {}));
            return true;
        };
        EXPECT_FALSE(Traspaso());
        ASSERT_EQ(m_canal.rechazos.size(), 1U);
        EXPECT_EQ(m_canal.rechazos.front().motivo, cosa.motivo);
        EXPECT_TRUE(m_canal.rechazos.front().causa.contains(QString::fromUtf8(cosa.palabra)));
        EXPECT_EQ(m_almacen.Con<svrZELT::cZTDatosGeneral>().ObtenerIdioma(), u"E"_s);
        struct stat apartado {};
        EXPECT_EQ(::lstat(qUtf8Printable(m_almacen.mdbmod() + u".1.rechazado"_s), &apartado), 0);
        EXPECT_FALSE(S_ISREG(apartado.st_mode));
    }
}

TEST_F(cZTTraspasoConDialogoTest, ALinkToAFolderGivesWayAndTheFolderStays) {
    Quitar();
    QDir().mkdir(m_almacen.Carpeta() + u"/papeles"_s);
    ASSERT_TRUE(QFile::link(m_almacen.Carpeta() + u"/papeles"_s, m_almacen.mdbmod()));
    m_canal.alPedirVuelta = [this](TareaDeVuelta& tarea) {
        EXPECT_FALSE(tarea.Volver(m_automatica, [](int) {}));
        return true;
    };
    EXPECT_FALSE(Traspaso());
    EXPECT_TRUE(QFileInfo(m_almacen.mdbmod()).isFile());
    EXPECT_TRUE(QDir(m_almacen.Carpeta() + u"/papeles"_s).exists());
}

TEST_F(cZTTraspasoConDialogoTest, DamageThatShowsLaterOffersTheCopies) {
    m_canal.alPedirVuelta = [this](TareaDeVuelta& tarea) {
        EXPECT_EQ(tarea.Rechazo().motivo, MotivoDeCopia::Danado);
        EXPECT_FALSE(tarea.Volver(m_automatica, [](int) {}));
        return true;
    };
    const ErrorZT dano = FalloDeAlmacen(NumError::AlmacenDanado, m_almacen.mdbmod());
    EXPECT_TRUE(Servidor().EsDano(dano));
    EXPECT_TRUE(Servidor().Volver(dano));
    m_canal.alPedirVuelta = nullptr;
    EXPECT_FALSE(Servidor().Volver(dano)) << "who does not go back";
}

TEST_F(cZTTraspasoConDialogoTest, WhatIsNoDamageOfThisStoreIsRaisedAgain) {
    for (const ErrorZT& error : {FalloDeAlmacen(NumError::AlmacenDanado, m_almacen.mdblec()),
                                 FalloDeAlmacen(NumError::AlmacenOcupado, m_almacen.mdbmod())}) {
        EXPECT_FALSE(Servidor().EsDano(error));
        EXPECT_EQ(NumeroDelError([&] { (void)Servidor().Volver(error); }), error.Numero());
    }
    FijarCopias(nullptr);
    const ErrorZT dano = FalloDeAlmacen(NumError::AlmacenDanado, m_almacen.mdbmod());
    EXPECT_EQ(NumeroDelError([&] { (void)Servidor().Volver(dano); }), 3049);
    EXPECT_TRUE(m_canal.rechazos.empty());
}

TEST_F(cZTTraspasoConDialogoTest, ACopyThatHasGoneMeanwhileIsToldAndTheFileStays) {
    EscribirFichero(m_almacen.mdbmod(), "no es una base de datos");
    m_canal.alPedirVuelta = [this](TareaDeVuelta& tarea) {
        QFile::remove(m_automatica);
        const auto fallo = tarea.Volver(m_automatica, [](int) {});
        EXPECT_EQ(fallo.value_or(FalloDeCopia{}).motivo, MotivoDeCopia::NoExiste);
        return false;
    };
    EXPECT_TRUE(Traspaso());
    EXPECT_EQ(LeerFichero(m_almacen.mdbmod()), "no es una base de datos");
}

TEST_F(cZTTraspasoConDialogoTest, WhereTheFileIsNotAtFaultNoCopyIsOffered) {
    SQLite::Database otra(m_almacen.mdbmod().toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("BEGIN EXCLUSIVE");
    m_canal.alPedirVuelta = [](TareaDeVuelta& tarea) {
        EXPECT_EQ(tarea.Rechazo().motivo, MotivoDeCopia::Ocupado);
        EXPECT_TRUE(tarea.Copias().empty());
        return false;
    };
    EXPECT_TRUE(Traspaso());
}

TEST_F(cZTTraspasoConDialogoTest, AReadOnlyFileIsRefusedUntouched) {
    const QByteArray antes = LeerFichero(m_almacen.mdbmod());
    for (const QString& ruta : {m_almacen.Carpeta(), m_almacen.mdbPath(), m_almacen.mdbmod()}) {
        ASSERT_TRUE(
            QFile::setPermissions(ruta, QFile::Permissions(ruta == m_almacen.mdbmod() ? 0x4444 : 0x7755)));
    }
    {
        const SinPrivilegios sinPrivilegios;
        m_canal.alPedirVuelta = [](TareaDeVuelta& tarea) {
            EXPECT_TRUE(tarea.Copias().empty());
            return false;
        };
        EXPECT_TRUE(Traspaso());
        FijarCopias(nullptr);
        EXPECT_EQ(Error(), 3027);
    }
    ASSERT_EQ(m_canal.rechazos.size(), 1U);
    EXPECT_EQ(m_canal.rechazos.front().motivo, MotivoDeCopia::SoloLectura);
    EXPECT_EQ(LeerFichero(m_almacen.mdbmod()), antes);
}
