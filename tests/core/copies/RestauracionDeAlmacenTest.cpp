#include "core/copies/RestauracionDeAlmacen.h"

#include <sqlite3.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <algorithm>
#include <random>

#include "core/base/plataforma/SistemaFicheros.h"
#include "core/copies/ErrorDeCopia.h"
#include "core/copies/RevisionDeCopia.h"
#include "core/services/svrZELT/cZTTraspaso.h"
#include "core/store/Integridad.h"
#include "core/store/Migracion.h"
#include "tests/support/DiscoLleno.h"
#include "tests/support/DiscoSinSitio.h"
#include "tests/support/PruebaDeCopias.h"

using namespace Qt::StringLiterals;

namespace {

/// The copy holds two declarants; the store has got a third one since.
class RestauracionDeAlmacenTest : public PruebaDeCopias {
  protected:
    void SetUp() override {
        Copiar();
        (void)GuardarDeclarante(almacen, u"33333333P"_s);
        CerrarAlmacenes();
    }

    void Restaurar(const QString& ruta) const { RestaurarAlmacen(ruta, vivo(), ahora, SinAvance); }
    [[nodiscard]] int Error(const QString& ruta) const {
        return NumeroDelError([&] { Restaurar(ruta); });
    }

    /// What a refusal may not touch.
    struct Estado {
        QByteArray contenido;
        EstadoFichero vivo;
        QStringList tablas, automaticas;

        friend bool operator==(const Estado&, const Estado&) = default;
    };
    [[nodiscard]] Estado Ahora() const {
        CerrarAlmacenes();
        return {LeerFichero(vivo()), ExaminarFichero(vivo()), Ficheros(almacen.mdbPath()),
                Ficheros(automaticas())};
    }
    /// Expects the file to be refused in under a second, and everything to be as it was.
    void EsperarRechazo(const QString& ruta, int numero) const {
        const Estado antes = Ahora();
        QElapsedTimer reloj;
        reloj.start();
        EXPECT_EQ(Error(ruta), numero) << ruta.toStdString();
        EXPECT_LT(reloj.elapsed(), 1000);
        EXPECT_EQ(Ahora(), antes) << ruta.toStdString();
    }
    void EsperarRechazoDe(const QByteArray& contenido, int numero) const {
        const QString ruta = copias() + u"/otro.mdb"_s;
        EscribirFichero(ruta, contenido);
        EsperarRechazo(ruta, numero);
    }
    /// Has the store of the moment stand in the file with a write half done, and its journal beside it.
    static void CortarUnaEscritura(const QString& ruta) {
        {
            SQLite::Database base(ruta.toStdString(), SQLite::OPEN_READWRITE);
            base.exec("BEGIN IMMEDIATE");
            base.exec("UPDATE T05_DECLARANTES SET T05_NIF = 'A MEDIAS'");
            base.check(sqlite3_db_cacheflush(base.getHandle()));
            QFile::copy(ruta, ruta + u".cortado"_s);
            QFile::copy(ruta + u"-journal"_s, ruta + u".diario"_s);
        }
        QFile::remove(ruta);
        QFile::rename(ruta + u".cortado"_s, ruta);
        QFile::rename(ruta + u".diario"_s, ruta + u"-journal"_s);
    }

    const QDateTime ahora{QDate(2007, 7, 4), QTime(9, 8, 7)};
    const QString tres = kDosDeclarantes + u" 33333333P"_s;
    const QString anterior = u"ZELTMOD-20070704-090807-000-restauracion.mdb"_s;
};

}  // namespace

TEST_F(RestauracionDeAlmacenTest, TheCopyTakesThePlaceOfTheStoreWhichGoesAmongTheAutomaticCopies) {
    Restaurar(copia());
    EXPECT_EQ(LeerFichero(vivo()), LeerFichero(copia()));
    EXPECT_EQ(Ficheros(automaticas()), (QStringList{anterior, anterior + u".sha256"_s}));
    EXPECT_EQ(Declarantes(automaticas() + u'/' + anterior), tres);
    EsperarSuma(automaticas() + u'/' + anterior);
    EXPECT_EQ(Ficheros(almacen.mdbPath()), (QStringList{u"ZELTLEC.mdb"_s, u"ZELTMOD.mdb"_s}));
}

TEST_F(RestauracionDeAlmacenTest, AKeptConnectionReadsTheRestoredStore) {
    const auto conexion = almacen.Usuario();
    Restaurar(copia());
    EXPECT_NE(almacen.Usuario(), conexion);
    EXPECT_EQ(GuardarDeclarante(almacen, u"44444444A"_s), 3);
}

TEST_F(RestauracionDeAlmacenTest, AWriteOfAnotherProgramIntoTheReplacedFileIsRefusedAndNotLost) {
    Almacen otro(ClaseAlmacen::Usuario, vivo());
    Restaurar(copia());
    EXPECT_EQ(NumeroDelError([&] { const Transaccion transaccion(otro); }), 3260);
    const auto conexion = almacen.Usuario();
    EXPECT_EQ(NumeroDelError([&] { const Transaccion transaccion(*conexion); }), 0);
}

TEST_F(RestauracionDeAlmacenTest, AProgramInAWriteIsWaitedForAndThenToldOf) {
    SQLite::Database otra(vivo().toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("BEGIN IMMEDIATE");
    EXPECT_EQ(Error(copia()), 3260);
    otra.exec(
        "INSERT INTO T05_DECLARANTES SELECT 9, 'NUEVO', T05_NOMBRE, T05_SIGLAS, T05_DOMICILIO, "
        "T05_NUMERO, T05_LETRA, T05_ESCAL, T05_PISO, T05_MANO, T05_PROVIN, T05_CPOST, T05_CMUNI, "
        "T05_MUNICI, T05_TELEPRE, T05_TELNUM, 9 FROM T05_DECLARANTES WHERE T05_CSDE = 1");
    otra.exec("COMMIT");
    EXPECT_EQ(Declarantes(vivo()), tres + u" NUEVO"_s);
    Restaurar(copia());
    EXPECT_EQ(Declarantes(automaticas() + u'/' + anterior), tres + u" NUEVO"_s);
}

TEST_F(RestauracionDeAlmacenTest, FilesOfOtherKindsAreRefusedAndNothingIsTouched) {
    EsperarRechazoDe({}, 3049);
    EsperarRechazoDe("%PDF-1.7\n%\xE2\xE3\xCF\xD3\n1 0 obj\n<<>>\nendobj\n", 3343);
    EsperarRechazoDe(QByteArray("clave;valor\r\n").repeated(500), 3343);
    EsperarRechazoDe(QByteArray(4096, '\0'), 3343);
    EsperarRechazo(almacen.mdblec(), 3343);
    EsperarRechazo(copias(), 3051);
    EsperarRechazo(copias() + u"/falta.mdb"_s, 3024);
    EsperarRechazo(u"/dev/zero"_s, 3051);
    const QString ajena = copias() + u"/ajena.mdb"_s;
    SQLite::Database(ajena.toStdString(), SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
        .exec("CREATE TABLE T00_GENERAL (T00_IDIOMA TEXT)");
    EsperarRechazo(ajena, 3343);
}

TEST_F(RestauracionDeAlmacenTest, AHugeFileOfAnotherKindIsRefusedAtOnce) {
    const QString ruta = copias() + u"/grande.mdb"_s;
    QFile fichero(ruta);
    ASSERT_TRUE(fichero.open(QIODevice::WriteOnly));
    ASSERT_TRUE(fichero.resize(qint64{8} << 30));
    fichero.close();
    EsperarRechazo(ruta, 3343);
}

TEST_F(RestauracionDeAlmacenTest, NewerAndUnsoundStoresAreRefused) {
    const std::vector<std::pair<const char*, int>> cambios{
        {"PRAGMA user_version = 7", 3340},
        {"CREATE TABLE ajena (a)", 3049},
        {"DELETE FROM T00_GENERAL", 3049},
        {"UPDATE T07_DECLARACIONES SET T07_CSDE = 99", 3049}};
    for (const auto& [sql, numero] : cambios) {
        const QString ruta = copias() + u"/otra.mdb"_s;
        EscribirFichero(ruta, LeerFichero(copia()));
        SQLite::Database(ruta.toStdString(), SQLite::OPEN_READWRITE).exec(sql);
        EsperarRechazo(ruta, numero);
    }
}

TEST_F(RestauracionDeAlmacenTest, TheStoreItselfIsNoCopyOfIt) {
    const QString enlace = copias() + u"/enlace.mdb"_s;
    const QString duro = copias() + u"/duro.mdb"_s;
    ASSERT_TRUE(QFile::link(vivo(), enlace));
    ASSERT_EQ(::link(QFile::encodeName(vivo()).constData(), QFile::encodeName(duro).constData()), 0);
    for (const QString& ruta : {vivo(), enlace, duro}) {
        EsperarRechazo(ruta, 75);
    }
}

TEST_F(RestauracionDeAlmacenTest, ACopyCutShortIsRefusedWhereverItIsCut) {
    constexpr int kCortes = 500;
    ASSERT_TRUE(QFile::remove(copia() + u".sha256"_s));
    const QByteArray entera = LeerFichero(copia());
    const Estado antes = Ahora();
    for (int corte = 0; corte < kCortes && !HasFailure(); ++corte) {
        EscribirFichero(copia(), entera.left(entera.size() * corte / kCortes));
        QElapsedTimer reloj;
        reloj.start();
        EXPECT_NE(Error(copia()), 0) << corte;
        EXPECT_LT(reloj.elapsed(), 1000);
    }
    EXPECT_EQ(Ahora(), antes);
}

TEST_F(RestauracionDeAlmacenTest, ACopyWithOneBitFlippedIsRefusedByItsSum) {
    constexpr int kBits = 1000;
    const QByteArray entera = LeerFichero(copia());
    std::minstd_rand azar(569);
    std::uniform_int_distribution<qsizetype> lugar(0, entera.size() * 8 - 1);
    const Estado antes = Ahora();
    for (int i = 0; i < kBits && !HasFailure(); ++i) {
        QByteArray cambiada = entera;
        const qsizetype bit = lugar(azar);
        cambiada[bit / 8] = static_cast<char>(cambiada.at(bit / 8) ^ (1 << (bit % 8)));
        EscribirFichero(copia(), cambiada);
        QElapsedTimer reloj;
        reloj.start();
        EXPECT_NE(Error(copia()), 0) << bit;
        EXPECT_LT(reloj.elapsed(), 1000);
    }
    EXPECT_EQ(Ahora(), antes);
}

TEST_F(RestauracionDeAlmacenTest, ASumThatIsNotThatOfTheCopyOrNoneAtAllIsRefused) {
    const QString ruta = copia() + u".sha256"_s;
    const QByteArray suma = LeerFichero(ruta);
    for (const QByteArray& otra : {QByteArray(), QByteArray("x"), suma.left(64), suma.left(40),
                                   "00" + suma.mid(2), QByteArray(10'000, 'a')}) {
        EscribirFichero(ruta, otra);
        EsperarRechazo(copia(), 3049);
    }
    ASSERT_TRUE(QFile::remove(ruta));
    ASSERT_TRUE(QDir().mkdir(ruta));
    EsperarRechazo(copia(), 3049);
}

TEST_F(RestauracionDeAlmacenTest, ACopyWithoutSumAndOneWhoseSumIsInCapitalsAreTaken) {
    const QString ruta = copia() + u".sha256"_s;
    EscribirFichero(ruta, LeerFichero(ruta).left(64).toUpper() + " *ZELTMod_bak.mdb\n");
    Restaurar(copia());
    ASSERT_TRUE(QFile::remove(ruta));
    Restaurar(copia());
    EXPECT_EQ(Declarantes(vivo()), kDosDeclarantes);
}

TEST_F(RestauracionDeAlmacenTest, AFullDiskLeavesEverythingAsItWas) {
    for (const rlim_t bytes : {0U, 1000U, 50'000U}) {
        const Estado antes = Ahora();
        int error = 0;
        {
            const DiscoLleno lleno(bytes);
            error = Error(copia());
        }
        EXPECT_NE(error, 0) << bytes;
        EXPECT_EQ(Ahora(), antes);
    }
}

TEST_F(RestauracionDeAlmacenTest, WantOfRoomAtWhateverCallIsToldAsSuchAndLeavesEverythingAsItWas) {
    bool negado = true;
    for (int dejadas = 0; negado; ++dejadas) {
        const Estado antes = Ahora();
        std::optional<FalloDeCopia> fallo;
        {
            const DiscoSinSitio disco(dejadas);
            fallo = Intentar(copia(), [this] { Restaurar(copia()); });
            negado = disco.Negado();
        }
        if (fallo) {
            EXPECT_EQ(fallo->motivo, MotivoDeCopia::DiscoLleno) << dejadas;
            EXPECT_EQ(Ahora(), antes) << dejadas;
        }
    }
    EXPECT_EQ(Declarantes(vivo()), kDosDeclarantes);
}

TEST_F(RestauracionDeAlmacenTest, WithoutAPlaceForWhatIsReplacedNothingIsReplaced) {
    ASSERT_TRUE(QDir(automaticas()).removeRecursively());
    EscribirFichero(automaticas(), "no es una carpeta");
    EsperarRechazo(copia(), 75);
}

TEST_F(RestauracionDeAlmacenTest, AStoreThatIsNotSoundIsKeptAsItIsUnderANameThatTellsSo) {
    const QByteArray texto = "esto no es un fichero de datos";
    for (const QString& nombre : {u"ZELTMOD.mdb.1.rechazado"_s, u"ZELTMOD.mdb.2.rechazado"_s}) {
        QFile::remove(vivo());
        EscribirFichero(vivo(), texto);
        Restaurar(copia());
        EXPECT_EQ(Declarantes(vivo()), kDosDeclarantes);
        EXPECT_EQ(LeerFichero(almacen.mdbPath() + nombre), texto);
    }
    EXPECT_EQ(Ficheros(automaticas()), QStringList());
}

TEST_F(RestauracionDeAlmacenTest, ANewerStoreAndAnEmptyFileAreKeptInTheSameWay) {
    SQLite::Database(vivo().toStdString(), SQLite::OPEN_READWRITE).exec("PRAGMA user_version = 7");
    const QByteArray nuevo = LeerFichero(vivo());
    Restaurar(copia());
    EXPECT_EQ(LeerFichero(vivo() + u".1.rechazado"_s), nuevo);
    QFile::remove(vivo());
    EscribirFichero(vivo(), {});
    Restaurar(copia());
    EXPECT_TRUE(QFile::exists(vivo() + u".2.rechazado"_s));
    EXPECT_EQ(Declarantes(vivo()), kDosDeclarantes);
}

TEST_F(RestauracionDeAlmacenTest, AWriteCutShortInTheStoreIsUndoneFirstAndItsJournalNeverReachesTheCopy) {
    CortarUnaEscritura(vivo());
    ASSERT_TRUE(QFile::exists(vivo() + u"-journal"_s));
    ASSERT_EQ(Declarantes(vivo()), u"A MEDIAS A MEDIAS A MEDIAS"_s);
    Restaurar(copia());
    EXPECT_EQ(Declarantes(automaticas() + u'/' + anterior), tres);
    EXPECT_EQ(LeerFichero(vivo()), LeerFichero(copia()));
    EXPECT_EQ(Ficheros(almacen.mdbPath()), (QStringList{u"ZELTLEC.mdb"_s, u"ZELTMOD.mdb"_s}));
}

TEST_F(RestauracionDeAlmacenTest, TheJournalOfAFileThatIsNoStoreIsSetAsideBeforeTheCopyComes) {
    EscribirFichero(vivo(), "esto no es un fichero de datos");
    EscribirFichero(vivo() + u"-journal"_s, QByteArray(2048, '\x7F'));
    Restaurar(copia());
    EXPECT_FALSE(QFile::exists(vivo() + u"-journal"_s));
    EXPECT_EQ(LeerFichero(vivo() + u"-journal.1.apartado"_s), QByteArray(2048, '\x7F'));
    EXPECT_EQ(NumeroDelError([&] { ComprobarIntegridad(*almacen.Usuario()); }), 0);
}

TEST_F(RestauracionDeAlmacenTest, AFileTakenFromAProgramCutShortIsTakenWithoutItsHalfWrite) {
    ASSERT_TRUE(QFile::remove(copia() + u".sha256"_s));
    CortarUnaEscritura(copia());
    Restaurar(copia());
    EXPECT_EQ(Declarantes(vivo()), kDosDeclarantes);
    EXPECT_TRUE(QFile::exists(copia() + u"-journal"_s)) << "the copy itself is only read";
}

TEST_F(RestauracionDeAlmacenTest, AJournalBesideACopyWhoseSumFitsIsNotPlayed) {
    const QByteArray entera = LeerFichero(copia());
    CortarUnaEscritura(copia());
    EscribirFichero(copia(), entera);
    Restaurar(copia());
    EXPECT_EQ(LeerFichero(vivo()), entera);
}

TEST_F(RestauracionDeAlmacenTest, AJournalThatStoodThereBeforeTheCopyIsNotPlayed) {
    CortarUnaEscritura(copia());
    const QByteArray ajeno = LeerFichero(copia() + u"-journal"_s);
    Copiar();
    ASSERT_TRUE(QFile::remove(copia() + u".sha256"_s));
    Restaurar(copia());
    EXPECT_EQ(Declarantes(vivo()), tres);
    EXPECT_EQ(LeerFichero(copia() + u"-journal.1.apartado"_s), ajeno);
}

TEST_F(RestauracionDeAlmacenTest, AJournalThatStoodThereBeforeAnAutomaticCopyIsSetAside) {
    const QString diario = automaticas() + u'/' + anterior + u"-journal"_s;
    ASSERT_TRUE(QDir().mkpath(automaticas()));
    EscribirFichero(diario, "ajeno");
    Restaurar(copia());
    EXPECT_FALSE(QFile::exists(diario));
    EXPECT_EQ(LeerFichero(diario + u".1.apartado"_s), "ajeno");
    EXPECT_EQ(Declarantes(automaticas() + u'/' + anterior), tres);
}

TEST_F(RestauracionDeAlmacenTest, WhateverByteOfTheHeaderOfTheStoreIsDamagedASoundCopyIsRestored) {
    constexpr qsizetype kCabecera = 100;
    const QByteArray entero = LeerFichero(vivo());
    const QByteArray buena = LeerFichero(copia());
    for (qsizetype lugar = 0; lugar < kCabecera && !HasFailure(); ++lugar) {
        for (const int mascara : {0x01, 0x03, 0xFF}) {
            QByteArray roto = entero;
            roto[lugar] = static_cast<char>(roto.at(lugar) ^ mascara);
            EscribirFichero(vivo(), roto);
            EXPECT_EQ(Error(copia()), 0) << lugar << ' ' << mascara;
            EXPECT_EQ(LeerFichero(vivo()), buena) << lugar << ' ' << mascara;
        }
    }
}

TEST_F(RestauracionDeAlmacenTest, AMissingStoreIsRestoredAndALinkToTheStoreStaysALink) {
    ASSERT_TRUE(QFile::remove(vivo()));
    Restaurar(copia());
    EXPECT_EQ(Declarantes(vivo()), kDosDeclarantes);

    const QString lejos = almacen.Carpeta() + u"/lejos.mdb"_s;
    ASSERT_TRUE(QFile::rename(vivo(), lejos));
    ASSERT_TRUE(QFile::link(lejos, vivo()));
    (void)GuardarDeclarante(almacen, u"33333333P"_s);
    Restaurar(copia());
    EXPECT_TRUE(QFileInfo(vivo()).isSymbolicLink());
    EXPECT_EQ(Declarantes(lejos), kDosDeclarantes);
}

TEST_F(RestauracionDeAlmacenTest, TheRestoredStoreHasThePermissionsOfTheOneItReplaces) {
    const auto permisos = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::WriteGroup;
    ASSERT_TRUE(QFile::setPermissions(vivo(), permisos));
    const auto antes = QFile::permissions(vivo());
    Restaurar(copia());
    EXPECT_EQ(QFile::permissions(vivo()), antes);
}

TEST_F(RestauracionDeAlmacenTest, TheOldestAutomaticCopyCanBeGoneBackTo) {
    for (int dia = 1; dia <= 10; ++dia) {
        (void)HacerCopiaAutomatica(almacen.Usuario()->Base(), vivo(), Ocasion::Diaria,
                                   QDateTime(QDate(2007, 6, dia), QTime(8, 0)));
    }
    (void)GuardarDeclarante(almacen, u"44444444A"_s);
    const QString primera = automaticas() + u"/ZELTMOD-20070601-080000-000-diaria.mdb"_s;
    Restaurar(primera);
    EXPECT_EQ(Declarantes(vivo()), tres);
    EXPECT_EQ(CopiasAutomaticas(automaticas()).size(), 10U);
    EXPECT_FALSE(QFile::exists(primera)) << "with the one of this restore it was the eleventh";
}

TEST_F(RestauracionDeAlmacenTest, ProgressRisesToTheEnd) {
    std::vector<int> avances;
    RestaurarAlmacen(copia(), vivo(), ahora, [&](int avance) { avances.push_back(avance); });
    ASSERT_FALSE(avances.empty());
    EXPECT_TRUE(std::ranges::is_sorted(avances));
    EXPECT_EQ(avances.back(), 100);
}

TEST(FalloDeCopiaTest, WantOfRoomIsToldAsSuchWhateverNumberItCameWith) {
    for (const NumError numero : {NumError::DiscoLleno, NumError::AlmacenDiscoLleno}) {
        EXPECT_EQ(FalloDe(ErrorZT(numero), u"/a"_s).motivo, MotivoDeCopia::DiscoLleno);
    }
    EXPECT_EQ(FalloDe(ErrorZT(NumError::ErrorDispositivo), u"/a"_s).motivo, MotivoDeCopia::ErrorDeDisco);
}
