// The process is killed at random moments of a backup and of a restore: what stands in the place is always
// the one store or the other, whole.

#include <QProcess>
#include <QThread>
#include <random>
#include <set>

#include "core/base/FicheroProvisional.h"
#include "core/copies/RevisionDeCopia.h"
#include "core/services/svrZELT/cZTTraspaso.h"
#include "tests/support/PruebaDeCopias.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kCortes = 200;

class CopiasTrasUnCorteTest : public PruebaDeCopias {
  protected:
    /// Two copies: one of two declarants and one of three.
    void SetUp() override {
        CopiarAlmacen(vivo(), dos, std::nullopt, SinAvance);
        (void)GuardarDeclarante(almacen, u"33333333P"_s);
        CopiarAlmacen(vivo(), tres, std::nullopt, SinAvance);
        CerrarAlmacenes();
    }

    /// Kills the process in the middle of its work, many times, and has `mirar` look at what is left, which
    /// gives the number of declarants. Both numbers have to come up. `trabajo` is what one turn takes at
    /// most, in microseconds.
    template <class F>
    void Cortar(const QStringList& argumentos, const QString& carpeta, unsigned long trabajo, F&& mirar) {
        std::minstd_rand azar(569);
        std::uniform_int_distribution<unsigned long> momento(0, trabajo);
        std::set<qint32> vistos;
        int aMedias = 0;
        for (int corte = 0; corte < kCortes && !HasFailure(); ++corte) {
            SCOPED_TRACE(corte);
            QProcess proceso;
            proceso.start(QStringLiteral(ZELT_COPIAR_SIN_PARAR), argumentos);
            ASSERT_TRUE(proceso.waitForReadyRead()) << proceso.readAllStandardError().constData();
            QThread::usleep(momento(azar));
            proceso.kill();
            ASSERT_TRUE(proceso.waitForFinished());
            const QStringList restos = QDir(carpeta).entryList({u"*.parcial"_s}, QDir::Files);
            aMedias += restos.isEmpty() ? 0 : 1;
            QuitarProvisionales(carpeta);
            EXPECT_EQ(QDir(carpeta).entryList({u"*.parcial*"_s}, QDir::Files), QStringList());
            vistos.insert(mirar());
        }
        EXPECT_EQ(vistos, (std::set{2, 3}));
        EXPECT_GT(aMedias, 0) << "no process was killed within its work";
    }

    const QString dos = almacen.Carpeta() + u"/dos.mdb"_s;
    const QString tres = almacen.Carpeta() + u"/tres.mdb"_s;
};

}  // namespace

TEST_F(CopiasTrasUnCorteTest, AKilledBackupLeavesTheFormerCopyOrTheNewOneWhole) {
    Cortar({u"copia"_s, copia(), dos, tres}, copias(), 25'000, [&] {
        qint32 declarantes = 0;
        EXPECT_EQ(NumeroDelError([&] { declarantes = RevisarCopia(copia()).declarantes; }), 0);
        return declarantes;
    });
}

TEST_F(CopiasTrasUnCorteTest, AKilledRestoreLeavesTheFormerStoreOrTheNewOneWhole) {
    FijarEsperaDeAlmacen(5000);
    Cortar({u"restaura"_s, vivo(), dos, tres}, almacen.mdbPath(), 60'000, [&] {
        auto servidor = almacen.Con<svrZELT::cZTTraspaso>();
        EXPECT_EQ(NumeroDelError([&] { (void)servidor.Traspaso(); }), 0);
        CerrarAlmacenes();
        EXPECT_FALSE(QFile::exists(vivo() + u"-journal"_s));
        return RevisarAlmacen(vivo()).declarantes;
    });
    for (const ResumenDeCopia& automatica : CopiasAutomaticas(automaticas())) {
        EXPECT_GE(automatica.declarantes, 2);
    }
    EXPECT_LE(QDir(automaticas()).entryList({u"ZELTMOD-*.mdb"_s}).size(), 11);
}
