#include "data/DatosGenerales.h"
#include "data/VersionReferencia.h"
#include "tests/support/AlmacenTemporal.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

TEST(ReferenciaTest, GeneralDataAreReadByName) {
    const AlmacenTemporal almacen;
    EXPECT_EQ(LeerDatoGeneral(almacen.mdblec(), kDepartamentoCas), u"Departamento de Hacienda y Finanzas"_s);
    EXPECT_EQ(LeerDatoGeneral(almacen.mdblec(), kDepartamentoEus), u"Ogasun eta Finantza Departamentua"_s);
    for (const auto* clave : {kURLAct, kURLAsistencia, kURLInfoCas, kURLInfoEus}) {
        EXPECT_FALSE(LeerDatoGeneral(almacen.mdblec(), clave).isEmpty());
    }
}

TEST(ReferenciaTest, ADatumThatIsMissingIsDamageOfTheStore) {
    const AlmacenTemporal almacen;
    EXPECT_EQ(NumeroDelError([&] { (void)LeerDatoGeneral(almacen.mdblec(), u"Nada"); }), 3049);
}

TEST(ReferenciaTest, TheVersionOfTheDataIsReadFromAnyFile) {
    const AlmacenTemporal almacen;
    EXPECT_GE(VersionDeReferencia(almacen.mdblec()), 1);
}

TEST(ReferenciaTest, WhatIsNoReferenceStoreHasVersionZero) {
    const AlmacenTemporal almacen;
    const QString ruta = almacen.mdbPath() + u"x.mdb"_s;
    EXPECT_EQ(VersionDeReferencia(ruta), 0);
    EscribirFichero(ruta, "texto");
    EXPECT_EQ(VersionDeReferencia(ruta), 0);
    EscribirFichero(ruta, LeerFichero(almacen.mdblec()).left(5000));
    EXPECT_EQ(VersionDeReferencia(ruta), 0);
    EXPECT_EQ(VersionDeReferencia(almacen.mdbmod()), 0);
    EXPECT_EQ(VersionDeReferencia(almacen.mdbPath()), 0);
}
