#include "core/store/FalloAlmacen.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

TEST(FalloAlmacenTest, EveryResultCodeOfTheLibraryHasItsNumber) {
    const std::initializer_list<std::pair<int, int>> casos{
        {SQLITE_BUSY, 3260},        {SQLITE_BUSY_RECOVERY, 3260},
        {SQLITE_LOCKED, 3260},      {SQLITE_FULL, 3183},
        {SQLITE_READONLY, 3027},    {SQLITE_READONLY_ROLLBACK, 3027},
        {SQLITE_CANTOPEN, 3051},    {SQLITE_PERM, 3051},
        {SQLITE_IOERR_WRITE, 3043}, {SQLITE_IOERR_FSYNC, 3043},
        {SQLITE_CORRUPT, 3049},     {SQLITE_CORRUPT_INDEX, 3049},
        {SQLITE_NOTADB, 3343},      {SQLITE_CONSTRAINT_UNIQUE, 3075},
        {SQLITE_ERROR, 3075},       {SQLITE_NOMEM, 3075},
        {SQLITE_AUTH, 3075}};
    for (const auto& [codigo, numero] : casos) {
        const ErrorZT error = FalloDeAlmacen(SQLite::Exception("x", codigo), u"/t/a.mdb"_s);
        EXPECT_EQ(error.Numero(), numero) << codigo;
        EXPECT_TRUE(error.Descripcion().contains(u"a.mdb"_s));
        EXPECT_TRUE(EsFalloDeAlmacen(error));
    }
}

TEST(FalloAlmacenTest, FailuresOfDataAreNoFailuresOfTheStore) {
    EXPECT_FALSE(EsFalloDeAlmacen(ErrorZT(NumError::NoCoincidenTipos)));
    EXPECT_FALSE(EsFalloDeAlmacen(ErrorZT(NumError::Subindice)));
}
