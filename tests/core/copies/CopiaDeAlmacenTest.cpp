#include "core/copies/CopiaDeAlmacen.h"

#include <QProcess>
#include <algorithm>

#include "core/base/FicheroProvisional.h"
#include "core/copies/RevisionDeCopia.h"
#include "core/services/svrZELT/cZTAnexos.h"
#include "tests/support/DiscoLleno.h"
#include "tests/support/PruebaDeCopias.h"

using namespace Qt::StringLiterals;

namespace {

class CopiaDeAlmacenTest : public PruebaDeCopias {
  protected:
    [[nodiscard]] int Error(const QString& destino) const {
        return NumeroDelError([&] { CopiarAlmacen(vivo(), destino, std::nullopt, SinAvance); });
    }
};

}  // namespace

TEST_F(CopiaDeAlmacenTest, TheCopyHoldsWhatTheStoreHoldsAndItsChecksumStandsBesideIt) {
    Copiar();
    EXPECT_EQ(Declarantes(copia()), kDosDeclarantes);
    EsperarSuma(copia());
    EXPECT_EQ(Ficheros(copias()), (QStringList{u"ZELTMod_bak.mdb"_s, u"ZELTMod_bak.mdb.sha256"_s}));
}

TEST_F(CopiaDeAlmacenTest, TheDayStandsInTheCopyAndNotInTheStore) {
    const QByteArray antes = LeerFichero(vivo());
    CopiarAlmacen(vivo(), copia(), FechaDeCopia{u"T00_GENERAL"_s, u"T00_BACKUP_TVC"_s, 20070704}, SinAvance);
    EXPECT_EQ(RevisarCopia(copia()).fecha, QDate(2007, 7, 4));
    EsperarSuma(copia());
    CerrarAlmacenes();
    EXPECT_EQ(LeerFichero(vivo()), antes);
}

TEST_F(CopiaDeAlmacenTest, ATableOrColumnThatIsNoIdentifierIsRefused) {
    for (const QString& nombre : {u""_s, u"a b"_s, u"T00_GENERAL\" --"_s}) {
        EXPECT_EQ(NumeroDelError([&] {
                      CopiarAlmacen(vivo(), copia(), FechaDeCopia{nombre, u"T00_BACKUP_TVC"_s, 1}, SinAvance);
                  }),
                  3075);
    }
    EXPECT_EQ(Ficheros(copias()), QStringList());
}

TEST_F(CopiaDeAlmacenTest, ACopyUnderTheSameNameTakesThePlaceOfTheFormerWithItsPermissions) {
    Copiar();
    ASSERT_TRUE(QFile::setPermissions(copia(), QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
    const auto permisos = QFile::permissions(copia());
    (void)GuardarDeclarante(almacen, u"33333333P"_s);
    Copiar();
    EXPECT_EQ(Declarantes(copia()), kDosDeclarantes + u" 33333333P"_s);
    EXPECT_EQ(QFile::permissions(copia()), permisos);
    EsperarSuma(copia());
}

TEST_F(CopiaDeAlmacenTest, ALinkToTheCopyStaysALink) {
    const QString lejos = almacen.Carpeta() + u"/lejos.mdb"_s;
    ASSERT_TRUE(QFile::link(lejos, copia()));
    Copiar();
    EXPECT_TRUE(QFileInfo(copia()).isSymbolicLink());
    EXPECT_EQ(Declarantes(lejos), kDosDeclarantes);
    EsperarSuma(lejos);
}

TEST_F(CopiaDeAlmacenTest, NamesOfAnyScriptAndWithSignsWork) {
    for (const QString& nombre : {u"Копия 復元 Ñandú.mdb"_s, u"a'b \"c\" %20 #1 ?x=1&y.mdb"_s}) {
        const QString ruta = copias() + u'/' + nombre;
        CopiarAlmacen(vivo(), ruta, std::nullopt, SinAvance);
        EXPECT_EQ(RevisarCopia(ruta).declarantes, 2) << nombre.toStdString();
        EsperarSuma(ruta);
    }
}

TEST_F(CopiaDeAlmacenTest, WhereTheNameLeavesNoRoomForItsSumTheFormerCopyStays) {
    for (const int largo : {234, 240, 255}) {
        const QString ruta = copias() + u'/' + QString(largo, u'x');
        EscribirFichero(ruta, "la copia anterior");
        EXPECT_EQ(Error(ruta), 75) << largo;
        EXPECT_EQ(LeerFichero(ruta), "la copia anterior") << largo;
    }
    const QString mayor = copias() + u'/' + QString(233, u'x');
    EXPECT_EQ(Error(mayor), 0);
    EsperarSuma(mayor);
}

TEST_F(CopiaDeAlmacenTest, AFolderThatIsMissingOrTakesNoFilesIsTold) {
    EXPECT_EQ(Error(copias() + u"/falta/x.mdb"_s), 76);
    EXPECT_EQ(Error(u"/proc/self/x.mdb"_s), 75);
}

TEST_F(CopiaDeAlmacenTest, AFullDiskLeavesTheFormerCopyAndItsSum) {
    Copiar();
    const QByteArray antes = LeerFichero(copia());
    (void)GuardarDeclarante(almacen, u"33333333P"_s);
    for (const rlim_t bytes : {0U, 1000U, 50'000U}) {
        const DiscoLleno lleno(bytes);
        EXPECT_NE(Error(copia()), 0) << bytes;
    }
    EXPECT_EQ(LeerFichero(copia()), antes);
    EsperarSuma(copia());
    EXPECT_EQ(Ficheros(copias()), (QStringList{u"ZELTMod_bak.mdb"_s, u"ZELTMod_bak.mdb.sha256"_s}));
}

TEST_F(CopiaDeAlmacenTest, AStoreThatAnotherProgramHoldsIsBusyAndNothingIsLeft) {
    SQLite::Database otra(vivo().toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("BEGIN EXCLUSIVE");
    EXPECT_EQ(Error(copia()), 3260);
    EXPECT_EQ(Ficheros(copias()), QStringList());
}

TEST_F(CopiaDeAlmacenTest, AStoreThatIsNotSoundIsNotCopied) {
    auto& base = almacen.Usuario()->Base();
    base.exec("PRAGMA foreign_keys = OFF");
    base.exec("UPDATE T07_DECLARACIONES SET T07_CSDE = 99");
    EXPECT_EQ(Error(copia()), 3049);
    EXPECT_EQ(Ficheros(copias()), QStringList());
}

TEST_F(CopiaDeAlmacenTest, WhatKilledProcessesLeftForTheSameCopyGoesAndNothingElseDoes) {
    const QStringList quedan{u"ZELTMod_bak.mdb.AbCdEf1.parcial"_s, u"ZELTMod_bak.mdb.parcial"_s,
                             u"otra.mdb.AbCdEf.parcial"_s};
    const QStringList van{u"ZELTMod_bak.mdb.GhIjKl.parcial"_s, u"ZELTMod_bak.mdb.GhIjKl.parcial-journal"_s};
    for (const QString& nombre : quedan + van) {
        EscribirFichero(copias() + u'/' + nombre, "resto");
    }
    Copiar();
    const QStringList ficheros = Ficheros(copias());
    for (const QString& nombre : quedan) {
        EXPECT_TRUE(ficheros.contains(nombre)) << nombre.toStdString();
    }
    for (const QString& nombre : van) {
        EXPECT_FALSE(ficheros.contains(nombre)) << nombre.toStdString();
    }
}

TEST_F(CopiaDeAlmacenTest, ProgressRisesToTheEnd) {
    std::vector<int> avances;
    CopiarAlmacen(vivo(), copia(), std::nullopt, [&](int avance) { avances.push_back(avance); });
    ASSERT_FALSE(avances.empty());
    EXPECT_TRUE(std::ranges::is_sorted(avances));
    EXPECT_EQ(avances.back(), 100);
}

TEST_F(CopiaDeAlmacenTest, CopiesThatAreMadeWhileAnotherProgramWritesAreSound) {
    constexpr int kCopias = 30;
    FijarEsperaDeAlmacen(5000);
    const qint32 CSDC = GuardarDeclaracion(almacen, 1, 2008, 1);
    QStringList argumentos{vivo(), QString::number(CSDC)};
    for (int i = 0; i < 20; ++i) {
        argumentos +=
            QString::number(GuardarEstablecimiento(almacen, 1, u"20ES%1X"_s.arg(i, 3, 10, QChar(u'0'))));
    }
    QProcess otra;
    otra.start(QStringLiteral(ZELT_GUARDAR_SIN_PARAR), argumentos);
    ASSERT_TRUE(otra.waitForReadyRead());
    std::set<QByteArray> vistas;
    for (int i = 0; i < kCopias; ++i) {
        Copiar();
        EXPECT_EQ(RevisarCopia(copia()).declaraciones, 4);
        svrZELT::cZTAnexos servidor;
        servidor.mdbmod = copia();
        const Tabla lineas = servidor.CargarAnexos(CSDC);
        ASSERT_EQ(lineas.UltimaFila(), 100);
        for (int fila = 1; fila <= lineas.UltimaFila(); ++fila) {
            ASSERT_EQ(lineas(5, fila).aDoble(), lineas(5, 1).aDoble());
        }
        vistas.insert(LeerFichero(copia() + u".sha256"_s));
        CerrarAlmacenes();
    }
    EXPECT_EQ(otra.state(), QProcess::Running) << otra.readAllStandardError().constData();
    EXPECT_GT(vistas.size(), 1U) << "nothing was written meanwhile";
    otra.kill();
    otra.waitForFinished();
}

TEST(FicheroProvisionalTest, LinksInACircleEnd) {
    const QTemporaryDir carpeta;
    ASSERT_TRUE(QFile::link(carpeta.filePath(u"b"_s), carpeta.filePath(u"a"_s)));
    ASSERT_TRUE(QFile::link(carpeta.filePath(u"a"_s), carpeta.filePath(u"b"_s)));
    EXPECT_FALSE(RutaReal(carpeta.filePath(u"a"_s)).isEmpty());
}
