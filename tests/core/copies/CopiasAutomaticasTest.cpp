#include "core/copies/CopiasAutomaticas.h"

#include "tests/support/PruebaDeCopias.h"

using namespace Qt::StringLiterals;

namespace {

class CopiasAutomaticasTest : public PruebaDeCopias {
  protected:
    /// Makes a copy at that time of 4 July 2007 and gives its name.
    [[nodiscard]] QString Hacer(QTime hora, Ocasion ocasion = Ocasion::Diaria) const {
        const QString ruta = HacerCopiaAutomatica(almacen.Usuario()->Base(), vivo(), ocasion,
                                                  QDateTime(QDate(2007, 7, 4), hora));
        EXPECT_EQ(QFileInfo(ruta).absolutePath(), automaticas());
        return QFileInfo(ruta).fileName();
    }
    void Podar(const QString& reciente) const { PodarCopiasAutomaticas(automaticas(), reciente); }
    [[nodiscard]] QStringList Hechas() const {
        return QDir(automaticas()).entryList({u"*.mdb"_s}, QDir::Files, QDir::Name);
    }
};

}  // namespace

TEST_F(CopiasAutomaticasTest, TheirFolderStandsBesideThatOfTheStore) {
    EXPECT_EQ(CarpetaDeCopiasAutomaticas(vivo()), automaticas());
}

TEST_F(CopiasAutomaticasTest, NamesTellDayTimeAndOccasionAndASumStandsBesideEach) {
    EXPECT_EQ(Hacer(QTime(9, 8, 7, 6)), u"ZELTMOD-20070704-090807-006-diaria.mdb"_s);
    EXPECT_EQ(Hacer(QTime(10, 0), Ocasion::Migracion), u"ZELTMOD-20070704-100000-000-migracion.mdb"_s);
    EXPECT_EQ(Hacer(QTime(11, 0), Ocasion::Restauracion), u"ZELTMOD-20070704-110000-000-restauracion.mdb"_s);
    for (const QString& nombre : Hechas()) {
        EsperarSuma(automaticas() + u'/' + nombre);
        EXPECT_EQ(Declarantes(automaticas() + u'/' + nombre), kDosDeclarantes);
    }
    EXPECT_EQ(Ficheros(automaticas()).size(), 6);
}

TEST_F(CopiasAutomaticasTest, ANameThatIsTakenIsNeverOverwritten) {
    const QString primera = Hacer(QTime(9, 0));
    const QByteArray contenido = LeerFichero(automaticas() + u'/' + primera);
    (void)GuardarDeclarante(almacen, u"33333333P"_s);
    EXPECT_EQ(Hacer(QTime(9, 0)), u"ZELTMOD-20070704-090000-001-diaria.mdb"_s);
    EXPECT_EQ(LeerFichero(automaticas() + u'/' + primera), contenido);
}

TEST_F(CopiasAutomaticasTest, TheLastTenAreKeptAndTheOthersGoWithTheirSums) {
    QString ultima;
    for (int minuto = 0; minuto < 13; ++minuto) {
        ultima = Hacer(QTime(9, minuto), minuto % 2 == 0 ? Ocasion::Diaria : Ocasion::Restauracion);
        Podar(ultima);
    }
    const QStringList quedan = Hechas();
    ASSERT_EQ(quedan.size(), 10);
    EXPECT_EQ(quedan.front(), u"ZELTMOD-20070704-090300-000-restauracion.mdb"_s);
    EXPECT_EQ(quedan.back(), ultima);
    EXPECT_EQ(Ficheros(automaticas()).size(), 20);
}

TEST_F(CopiasAutomaticasTest, FilesOfOtherNamesAreNeverRemoved) {
    const QStringList ajenos{u"ZELTMOD-20060101-000000-000-manual.mdb"_s,
                             u"ZELTMOD-20060101-000000-000-diaria.mdb.bak"_s,
                             u"ZELTMOD-20061399-000000-000-diaria.mdb"_s,
                             u"zeltmod-20060101-000000-000-diaria.mdb"_s,
                             u"ZELTMOD-2006.mdb"_s,
                             u"mi copia.mdb"_s};
    (void)Hacer(QTime(8, 0));
    for (const QString& nombre : ajenos) {
        EscribirFichero(automaticas() + u'/' + nombre, "de otro");
    }
    for (int minuto = 0; minuto < 12; ++minuto) {
        Podar(Hacer(QTime(9, minuto)));
    }
    for (const QString& nombre : ajenos) {
        EXPECT_EQ(LeerFichero(automaticas() + u'/' + nombre), "de otro") << nombre.toStdString();
    }
    EXPECT_EQ(Hechas().size(), 10 + 5);
}

TEST_F(CopiasAutomaticasTest, TheOneJustMadeStaysThoughTheClockHasGoneBack) {
    for (int minuto = 0; minuto < 10; ++minuto) {
        (void)Hacer(QTime(9, minuto));
    }
    const QString reciente = Hacer(QTime(1, 0));
    Podar(reciente);
    EXPECT_EQ(Hechas().front(), reciente);
    EXPECT_EQ(Hechas().size(), 10);
    EXPECT_FALSE(Hechas().contains(u"ZELTMOD-20070704-090000-000-diaria.mdb"_s));
}

TEST_F(CopiasAutomaticasTest, TheListHasTheSoundOnesTheLatestFirst) {
    (void)Hacer(QTime(9, 0));
    const QString danada = Hacer(QTime(10, 0));
    (void)GuardarDeclarante(almacen, u"33333333P"_s);
    (void)Hacer(QTime(11, 0, 30), Ocasion::Restauracion);
    EscribirFichero(automaticas() + u'/' + danada, "otra cosa");
    const auto copias = CopiasAutomaticas(automaticas());
    ASSERT_EQ(copias.size(), 2U);
    EXPECT_EQ(copias.at(0).fecha, QDate(2007, 7, 4));
    EXPECT_EQ(copias.at(0).hora, QTime(11, 0, 30));
    EXPECT_EQ(copias.at(0).declarantes, 3);
    EXPECT_EQ(copias.at(0).declaraciones, 3);
    EXPECT_EQ(copias.at(1).hora, QTime(9, 0));
    EXPECT_EQ(copias.at(1).declarantes, 2);
    EXPECT_TRUE(CopiasAutomaticas(almacen.Carpeta() + u"/falta"_s).empty());
}

TEST_F(CopiasAutomaticasTest, OneOfTheDayIsKnownByItsName) {
    EXPECT_FALSE(HayCopiaDelDia(automaticas(), QDate(2007, 7, 4)));
    (void)Hacer(QTime(9, 0), Ocasion::Restauracion);
    EXPECT_FALSE(HayCopiaDelDia(automaticas(), QDate(2007, 7, 4)));
    (void)Hacer(QTime(10, 0));
    EXPECT_TRUE(HayCopiaDelDia(automaticas(), QDate(2007, 7, 4)));
    EXPECT_FALSE(HayCopiaDelDia(automaticas(), QDate(2007, 7, 5)));
}

TEST_F(CopiasAutomaticasTest, AFolderThatCannotBeMadeIsTold) {
    ASSERT_TRUE(QDir(copias()).removeRecursively());
    EscribirFichero(copias(), "no es una carpeta");
    EXPECT_EQ(NumeroDelError([&] { (void)Hacer(QTime(9, 0)); }), 75);
}
