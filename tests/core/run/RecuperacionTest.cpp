#include "core/run/Recuperacion.h"

#include <sys/stat.h>

#include <QFile>

#include "core/run/Entorno.h"
#include "tests/support/EntornoDePrueba.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/MascaraDePermisos.h"

using namespace Qt::StringLiterals;

namespace {

using RecuperacionTest = EntornoDePrueba;

DatosSinGuardar Unos(const QString& nombre) {
    return {.formulario = u"frmZTDeclarante"_s,
            .CSDE = 3,
            .NIF = u"12345678Z"_s,
            .clave = 7,
            .rasgo = u"2007/2"_s,
            .valores = {{u"txtNombre"_s, nombre}, {u"txtLetra"_s, QString()}},
            .lineas = {{.CSES = 5, .producto = 6, .exento = -1, .base = kCentesimasMaximas}}};
}

/// The file of one form, with `cambio` in the place of what the program wrote as `campo`.
QByteArray FicheroCon(const QByteArray& campo, const QByteArray& cambio) {
    GuardarRecuperacion({Unos(u"UNA"_s)});
    const QByteArray bueno = LeerFichero(RutaDeRecuperacion()).simplified();
    QByteArray malo = bueno;
    malo.replace(campo, cambio);
    EXPECT_NE(malo, bueno) << campo.toStdString();
    return malo;
}

void EsperarQueNoSeUse(const QByteArray& contenido) {
    QFile::remove(RegistroDeRecuperacion());
    EscribirFichero(RutaDeRecuperacion(), contenido);
    EXPECT_TRUE(LeerRecuperacion().empty()) << contenido.left(80).toStdString();
    EXPECT_EQ(LeerFichero(RegistroDeRecuperacion()).count('\n'), 1) << contenido.left(80).toStdString();
    QuitarRecuperacion();
}

}  // namespace

TEST_F(RecuperacionTest, WhatIsKeptComesBackAsItWas) {
    EXPECT_TRUE(LeerRecuperacion().empty());
    const std::vector<DatosSinGuardar> datos{Unos(u"ÑU & <b>\"HIJOS\"\r\n€"_s), Unos(u"OTRA"_s)};
    GuardarRecuperacion(datos);
    EXPECT_EQ(LeerRecuperacion(), datos);
    QuitarRecuperacion();
    EXPECT_FALSE(QFile::exists(RutaDeRecuperacion()));
    EXPECT_FALSE(QFile::exists(RegistroDeRecuperacion()));
}

TEST_F(RecuperacionTest, OnlyTheUserCanReadItWhateverTheSettingsAndWhateverStoodThere) {
    for (const mode_t mascara : {mode_t{0}, mode_t{077}}) {
        const MascaraDePermisos permisos(mascara);
        GuardarRecuperacion({Unos(u"UNA"_s)});
        EXPECT_EQ(PermisosDe(RutaDeRecuperacion()), 0600U);
        ASSERT_EQ(::chmod(QFile::encodeName(RutaDeRecuperacion()).constData(), 0644), 0);
        GuardarRecuperacion({Unos(u"OTRA"_s)});
        EXPECT_EQ(PermisosDe(RutaDeRecuperacion()), 0600U);
    }
}

TEST_F(RecuperacionTest, AnotherFailureAddsToItAndTheSameDataStandOnce) {
    GuardarRecuperacion({Unos(u"UNA"_s)});
    GuardarRecuperacion({Unos(u"OTRA"_s), Unos(u"UNA"_s)});
    EXPECT_EQ(LeerRecuperacion(), (std::vector{Unos(u"UNA"_s), Unos(u"OTRA"_s)}));
}

TEST_F(RecuperacionTest, OfTooManyTheLatestAreKept) {
    std::vector<DatosSinGuardar> datos;
    for (int i = 1; i <= 9; ++i) {
        datos.push_back(Unos(QString::number(i)));
    }
    GuardarRecuperacion(datos);
    EXPECT_EQ(LeerRecuperacion(), std::vector(datos.begin() + 1, datos.end()));
}

TEST_F(RecuperacionTest, AFileThatIsNoneOfItsOwnIsNotUsedAndTheLogSaysSo) {
    for (const QByteArray& contenido :
         {QByteArray(), QByteArray("x"), QByteArray("{\"a\":1}"), QByteArray(2 << 20, '['),
          QByteArray("[[[\0", 4), QByteArray("[1]"), QByteArray("[{}]"), QByteArray("[{\"valores\": 3}]")}) {
        EsperarQueNoSeUse(contenido);
    }
}

TEST_F(RecuperacionTest, AFileWithAValueThatNoScreenHasIsNotUsedAtAll) {
    EsperarQueNoSeUse(FicheroCon("\"CSDE\": 3", "\"CSDE\": -3"));
    EsperarQueNoSeUse(FicheroCon("\"CSDE\": 3", "\"CSDE\": 3.5"));
    EsperarQueNoSeUse(FicheroCon("\"clave\": 7", "\"clave\": 4294967303"));
    EsperarQueNoSeUse(FicheroCon("\"clave\": 7", "\"clave\": \"7\""));
    EsperarQueNoSeUse(FicheroCon("[ 5, 6, -1,", "[ 5, 7, -1,"));
    EsperarQueNoSeUse(FicheroCon("[ 5, 6, -1,", "[ 5, 0, -1,"));
    EsperarQueNoSeUse(FicheroCon("[ 5, 6, -1,", "[ 5, 6, 1e300,"));
    EsperarQueNoSeUse(FicheroCon("[ 5, 6, -1,", "[ 5, 6,"));
    EsperarQueNoSeUse(FicheroCon("\"UNA\"", "[1]"));
    EsperarQueNoSeUse(FicheroCon("UNA", QByteArray(1001, 'A')));
    EsperarQueNoSeUse(FicheroCon("txtLetra", QByteArray(1001, 'A')));
}

TEST_F(RecuperacionTest, WhatIsNoFileIsNotUsedAndNotWaitedFor) {
    const QByteArray ruta = QFile::encodeName(RutaDeRecuperacion());
    ASSERT_EQ(::mkfifo(ruta.constData(), 0600), 0);
    EXPECT_TRUE(LeerRecuperacion().empty());
    QuitarRecuperacion();

    const QString ajeno = Entorno().mdbPath + u"ajeno"_s;
    GuardarRecuperacion({Unos(u"UNA"_s)});
    ASSERT_TRUE(QFile::rename(RutaDeRecuperacion(), ajeno));
    ASSERT_TRUE(QFile::link(ajeno, RutaDeRecuperacion()));
    EXPECT_TRUE(LeerRecuperacion().empty());
    const QByteArray antes = LeerFichero(ajeno);
    GuardarRecuperacion({Unos(u"OTRA"_s)});
    EXPECT_EQ(LeerFichero(ajeno), antes) << "nothing is written through a link";
    EXPECT_EQ(LeerRecuperacion(), std::vector{Unos(u"OTRA"_s)});
    EXPECT_EQ(LeerFichero(RegistroDeRecuperacion()).count('\n'), 3);
}
