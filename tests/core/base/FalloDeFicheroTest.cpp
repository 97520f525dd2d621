#include "core/base/FalloDeFichero.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "core/base/CarpetaNueva.h"
#include "core/base/FicheroNuevo.h"
#include "core/base/plataforma/SistemaFicheros.h"
#include "tests/support/DiscoSinSitio.h"
#include "tests/support/Imprimibles.h"

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
    EXPECT_EQ(fallo.Descripcion(), u"Disco lleno: /a/b.txt. No hay espacio suficiente en el disco."_s);
}

TEST(FalloDeFicheroTest, AFileForWhichThereIsNoRoomAtWhateverCallIsAFullDiskAndNothingIsLeft) {
    const QTemporaryDir carpeta;
    const QString lugar = carpeta.filePath(u"una/otra"_s);
    bool negado = true;
    int fallos = 0;
    for (int dejadas = 0; negado; ++dejadas) {
        int numero = 0;
        {
            const DiscoSinSitio disco(dejadas);
            numero = NumeroDelError([&] { GuardarFicheroNuevo(lugar, u"a"_s, u".pdf"_s, "contenido"); });
            negado = disco.Negado();
        }
        if (numero != 0) {
            ++fallos;
            EXPECT_EQ(numero, 61) << dejadas;
            EXPECT_TRUE(QDir(lugar).isEmpty()) << dejadas;
        }
    }
    EXPECT_GE(fallos, 3);
}

TEST(FalloDeFicheroTest, AFolderForWhichThereIsNoRoomIsAFullDisk) {
    const QTemporaryDir carpeta;
    const QString ruta = carpeta.filePath(u"una/otra"_s);
    const auto crear = [&ruta] { CrearCarpeta(ruta, NumError::ErrorAccesoRuta); };
    int numero = 0;
    {
        const DiscoSinSitio sinSitio;
        numero = NumeroDelError(crear);
    }
    EXPECT_EQ(numero, 61);
    crear();
    EXPECT_TRUE(QDir(ruta).exists());
    EXPECT_EQ(NumeroDelError([] { CrearCarpeta(u"/proc/self/otra"_s, NumError::ErrorAccesoRuta); }), 75);
}

TEST(FalloDeFicheroTest, WhatTheSystemSaysIsToldInTheProgramsOwnWords) {
    errno = EACCES;
    EXPECT_EQ(FalloDelSistema(NumError::ErrorAccesoRuta, u"/a"_s).Descripcion(),
              u"Error de acceso a la ruta o al archivo: /a. No hay permiso."_s);
    errno = ENOSPC;
    EXPECT_EQ(FalloDelSistema(NumError::ErrorAccesoRuta, u"/a"_s).Numero(), 61);
    errno = EXDEV;
    EXPECT_EQ(CausaDelUltimoFallo(), u"causa_sistema");
}
