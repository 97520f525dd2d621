#include "core/base/FalloDeFichero.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace Qt::StringLiterals;

TEST(FalloDeFicheroTest, ItNamesTheFileAndItsCause) {
    const ErrorZT con = FalloDeFichero(NumError::NoExisteRuta, u"/a/b.txt"_s, u"No se puede."_s);
    EXPECT_EQ(con.Numero(), 76);
    EXPECT_EQ(con.Descripcion(), TextoDeError(NumError::NoExisteRuta) + u": /a/b.txt. No se puede."_s);
    EXPECT_TRUE(FalloDeFichero(NumError::NoExisteRuta, u"/a/b.txt"_s).Descripcion().endsWith(u": /a/b.txt."));
}

TEST(FalloDeFicheroTest, AFullDiskHasANumberOfItsOwn) {
    EXPECT_EQ(NumeroDeEscritura(QFileDevice::ResourceError), NumError::DiscoLleno);
    for (const QFileDevice::FileError otro :
         {QFileDevice::WriteError, QFileDevice::FatalError, QFileDevice::UnspecifiedError}) {
        EXPECT_EQ(NumeroDeEscritura(otro), NumError::ErrorDispositivo);
    }
}

TEST(FalloDeFicheroTest, AWriteToADeviceWithoutRoomIsAFullDisk) {
    QFile lleno(u"/dev/full"_s);
    ASSERT_TRUE(lleno.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    ASSERT_LT(lleno.write("x"), 0);
    const ErrorZT fallo = FalloDeEscritura(lleno, u"/a/b.txt"_s);
    EXPECT_EQ(fallo.Numero(), 61);
    EXPECT_EQ(fallo.Descripcion(), u"Disco lleno: /a/b.txt."_s);
}
