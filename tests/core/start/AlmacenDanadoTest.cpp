// A start over a damaged store: it goes through to the end, or the copies are offered. It never ends in an
// error, and no damage gets past the check behind the splash.

#include <random>

#include "core/copies/CopiasAutomaticas.h"
#include "core/run/GeneralZT.h"
#include "core/services/svrZELT/cZTDeclarante.h"
#include "core/start/Arranque.h"
#include "core/store/Almacen.h"
#include "tests/support/CopiasDePrueba.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/FicherosDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kMutaciones = 300;
constexpr int kCabecera = 100;

enum class Final { Ofrecido, Entero };

class AlmacenDanadoTest : public EntornoDePrueba {
  protected:
    void SetUp() override {
        EntornoDePrueba::SetUp();
        svrZELT::cZTDeclarante servidor;
        servidor.mdbmod = Entorno().mdbmod;
        for (const QString& nif : {u"11111111H"_s, u"22222222J"_s, u"33333333P"_s}) {
            (void)servidor.GuardarDeclarante(RegistroDeDeclarante(nif, u"EMPRESA "_s + nif));
        }
        automatica = HacerCopiaAutomatica(AbrirAlmacen(ClaseAlmacen::Usuario, Entorno().mdbmod)->Base(),
                                          Entorno().mdbmod, Ocasion::Diaria, canal.ahora);
        CerrarAlmacenes();
        entero = LeerFichero(Entorno().mdbmod);
    }

    /// The steps of the start that touch the store, with a user who ends the program when he is asked.
    Final Arrancar(const QByteArray& contenido) {
        CerrarAlmacenes();
        for (const QString& sufijo : {u"-journal"_s, u"-wal"_s, u"-shm"_s}) {
            QFile::remove(Entorno().mdbmod + sufijo);
        }
        EscribirFichero(Entorno().mdbmod, contenido);
        canal.rechazos.clear();
        const bool sigue = !Traspaso() && ConVuelta(InicializarEntorno) && ConVuelta([] {
            oRevision().Empezar(Entorno().mdbmod);
            ExigirAlmacenSano();
            (void)ExisteDec();
        });
        EXPECT_EQ(sigue, canal.rechazos.empty());
        return sigue ? Final::Entero : Final::Ofrecido;
    }

    [[nodiscard]] static bool EsSano() {
        SQLite::Database base(Entorno().mdbmod.toStdString(), SQLite::OPEN_READONLY);
        return base.execAndGet("PRAGMA integrity_check").getText() == std::string("ok");
    }

    CopiasDePrueba canal;
    QString automatica;
    QByteArray entero;
};

}  // namespace

TEST_F(AlmacenDanadoTest, OneChangedByteAnywhereIsOfferedTheCopiesOrDoesNoHarm) {
    std::minstd_rand azar(569);
    std::uniform_int_distribution<qsizetype> lugar(0, entero.size() - 1);
    std::uniform_int_distribution<int> valor(1, 255);
    int ofrecidos = 0;
    for (int i = 0; i < kMutaciones && !HasFailure(); ++i) {
        QByteArray roto = entero;
        const qsizetype donde = i < kCabecera ? i : lugar(azar);
        roto[donde] = static_cast<char>(roto.at(donde) ^ valor(azar));
        SCOPED_TRACE(donde);
        Final final{};
        ASSERT_EQ(DescripcionDelError([&] { final = Arrancar(roto); }), QString());
        if (final == Final::Entero) {
            EXPECT_TRUE(EsSano());
        } else {
            ++ofrecidos;
        }
    }
    EXPECT_GT(ofrecidos, kCabecera / 2);
}

TEST_F(AlmacenDanadoTest, APartThatIsOverwrittenOrCutOffIsOfferedTheCopies) {
    for (qsizetype lugar = 4096; lugar < entero.size(); lugar += 4096) {
        QByteArray roto = entero;
        roto.replace(lugar, 64, QByteArray(64, '\x5A'));
        EXPECT_EQ(Arrancar(roto), Final::Ofrecido) << lugar;
        EXPECT_EQ(Arrancar(entero.chopped(lugar - 1)), Final::Ofrecido) << lugar;
    }
    EXPECT_EQ(Arrancar(entero), Final::Entero);
}

TEST_F(AlmacenDanadoTest, GoingBackWhereTheDamageShowsBehindTheSplashGoesOnWithTheCopy) {
    auto& base = AbrirAlmacen(ClaseAlmacen::Usuario, Entorno().mdbmod)->Base();
    base.exec("PRAGMA foreign_keys = OFF");
    base.exec("INSERT INTO T07_DECLARACIONES (T07_CSDE, T07_EJERCICIO, T07_PERIODO) VALUES (5, 2010, 1)");
    CerrarAlmacenes();
    const QByteArray roto = LeerFichero(Entorno().mdbmod);
    canal.alPedirVuelta = [this](TareaDeVuelta& tarea) {
        EXPECT_EQ(tarea.Rechazo().motivo, MotivoDeCopia::Danado);
        EXPECT_FALSE(tarea.Volver(automatica, [](int) {}));
        return true;
    };
    ASSERT_FALSE(Traspaso());
    oRevision().Empezar(Entorno().mdbmod);
    int pasos = 0;
    EXPECT_TRUE(ConVuelta([&] {
        ++pasos;
        ExigirAlmacenSano();
    }));
    EXPECT_EQ(pasos, 2);
    EXPECT_EQ(canal.rechazos.size(), 1U);
    EXPECT_EQ(terminado, -1);
    EXPECT_TRUE(EsSano());
    EXPECT_EQ(ExisteDec().UltimaFila(), 3);
}

TEST_F(AlmacenDanadoTest, WhoDoesNotGoBackEndsTheProgramAndTheFileStays) {
    const ErrorZT dano =
        ErrorZT(NumError::AlmacenDanado, u"roto: "_s + QDir::toNativeSeparators(Entorno().mdbmod));
    EXPECT_FALSE(ConVuelta([&] { throw dano; }));
    EXPECT_EQ(terminado, 0);
    EXPECT_EQ(LeerFichero(Entorno().mdbmod), entero);
}

TEST_F(AlmacenDanadoTest, AFailureOfAnotherKindClimbsOn) {
    EXPECT_EQ(NumeroDelError([] { (void)ConVuelta([] { throw ErrorZT(NumError::Subindice); }); }), 9);
    EXPECT_TRUE(canal.rechazos.empty());
}
