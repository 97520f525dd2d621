#include "core/store/DatosGenerales.h"
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

TEST(ReferenciaTest, AMissingFileHasVersionZeroAndWhatIsNoReferenceStoreIsNamed) {
    const AlmacenTemporal almacen;
    const QString ruta = almacen.mdbPath() + u"x.mdb"_s;
    EXPECT_EQ(VersionDeReferencia(ruta), 0);
    const auto numero = [](const QString& fichero) {
        return NumeroDelError([&] { (void)VersionDeReferencia(fichero); });
    };
    EscribirFichero(ruta, "texto");
    EXPECT_EQ(numero(ruta), 3343);
    EXPECT_TRUE(DescripcionDelError([&] { (void)VersionDeReferencia(ruta); }).contains(ruta));
    EscribirFichero(ruta, LeerFichero(almacen.mdblec()).left(5000));
    EXPECT_EQ(numero(ruta), 3049);
    EXPECT_EQ(numero(almacen.mdbmod()), 3343);
    EXPECT_EQ(numero(almacen.mdbPath()), 3051);
}
