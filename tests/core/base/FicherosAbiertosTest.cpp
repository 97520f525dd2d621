#include "core/base/FicherosAbiertos.h"

#include <sys/resource.h>

#include <QFile>
#include <QTemporaryDir>
#include <cerrno>
#include <optional>

#include "tests/support/EntornoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

/// For its life the process opens no other file.
class SinMasFicheros {
  public:
    SinMasFicheros() {
        getrlimit(RLIMIT_NOFILE, &m_antes);
        const rlimit limite{0, m_antes.rlim_max};
        setrlimit(RLIMIT_NOFILE, &limite);
    }
    ~SinMasFicheros() { setrlimit(RLIMIT_NOFILE, &m_antes); }
    SinMasFicheros(const SinMasFicheros&) = delete;
    SinMasFicheros& operator=(const SinMasFicheros&) = delete;

  private:
    rlimit m_antes{};
};

class FicherosAbiertosTest : public testing::Test {
  protected:
    static ErrorZT FalloAlAbrir(const QString& ruta, QIODevice::OpenMode modo) {
        try {
            const FicheroZT fichero(ruta, modo);
        } catch (const ErrorZT& error) {
            return error;
        }
        return ErrorZT(NumError::ErrorInterno, u"it opened"_s);
    }

    QTemporaryDir carpeta;
};

}  // namespace

TEST_F(FicherosAbiertosTest, WhatStandsAtThePathTellsTheCause) {
    EXPECT_EQ(FalloAlAbrir(carpeta.path(), QIODevice::ReadOnly).Numero(), 75);
    EXPECT_EQ(FalloAlAbrir(carpeta.filePath(u"no/hay.txt"_s), QIODevice::WriteOnly).Numero(), 76);
    const ErrorZT ausente = FalloAlAbrir(carpeta.filePath(u"no_hay.txt"_s), QIODevice::ReadOnly);
    EXPECT_EQ(ausente.Numero(), 53);
    EXPECT_TRUE(ausente.Descripcion().endsWith(carpeta.filePath(u"no_hay.txt"_s)));
}

TEST_F(FicherosAbiertosTest, WhereThePathTellsNothingTheSystemDoes) {
    const QString largo = carpeta.filePath(QString(300, u'a'));
    EXPECT_TRUE(
        FalloAlAbrir(largo, QIODevice::WriteOnly).Descripcion().endsWith(u"El nombre es demasiado largo."));

    const QString ruta = carpeta.filePath(u"uno.txt"_s);
    std::optional<ErrorZT> fallo;
    {
        const SinMasFicheros limite;
        fallo = FalloAlAbrir(ruta, QIODevice::WriteOnly);
    }
    EXPECT_EQ(fallo->Numero(), 57);
    EXPECT_EQ(fallo->Descripcion(), TextoDeError(NumError::ErrorDispositivo) +
                                        u": %1. Hay demasiados ficheros abiertos."_s.arg(ruta));
}
