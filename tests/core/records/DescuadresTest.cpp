#include "core/records/Descuadres.h"

#include "core/records/cZTDeclaraciones.h"
#include "core/services/svrZELT/cZTAnexos.h"
#include "core/store/Almacen.h"
#include "tests/support/EntornoDeDeclaraciones.h"
#include "tests/support/FicherosDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

/// A stored declaration of 2007 with a line of product 1, base 100,00, and one of product 4.
class DescuadresTest : public EntornoDeDeclaraciones {
  protected:
    void SetUp() override {
        EntornoDeDeclaraciones::SetUp();
        const Registro tasas{24e6, 24e6, 6e6, 1e6, 24e6, 6e6};
        csdc = NuevaDeclaracion(2007, 2, {24e6, 24e6, 6e6, 1e6, 24e6, 6e6});
        const qint32 cses = NuevoEstablecimiento(u"20ES123Y"_s);
        Tabla lineas(7, 2);
        for (int fila = 1; fila <= 2; ++fila) {
            lineas(2, fila) = cses;
            lineas(3, fila) = qint16(fila == 1 ? 1 : 4);
            lineas(4, fila) = 333.0;
            lineas(5, fila) = 10000.0;
            lineas(6, fila) = 0.0;
        }
        ASSERT_TRUE(ServidorDeUsuario<svrZELT::cZTAnexos>().GuardarAnexos(lineas, tasas, csdc));
    }
    void Danar(const char* sql) const {
        AbrirAlmacen(ClaseAlmacen::Usuario, Entorno().mdbmod)->Base().exec(sql);
    }
    void Cargar() const {
        oDeclaraciones().CSDC = csdc;
        oDeclaraciones().CargarDeclaracion();
    }
    [[nodiscard]] static QStringList Anotadas() {
        return QString::fromUtf8(LeerFichero(RutaDeDescuadres())).split(u'\n', Qt::SkipEmptyParts);
    }

    qint32 csdc = 0;
};

}  // namespace

TEST_F(DescuadresTest, WhatTheProgramStoresAddsUp) {
    Cargar();
    EXPECT_FALSE(oDeclaraciones().Descuadrada());
    EXPECT_FALSE(QFile::exists(RutaDeDescuadres()));
}

TEST_F(DescuadresTest, EveryWrongFigureIsFoundWhereItStands) {
    const std::vector<std::pair<const char*, QString>> danos{
        {"UPDATE T08_ANEXOS SET T08_CUOTA = 1 WHERE T08_PRODUCTO = 1",
         u"producto 1, cuota: guardado 0.0100"_s},
        {"UPDATE T10_LIQUIDACION SET T10_SUMEX = 334 WHERE T10_PRODUCTO = 4",
         u"producto 4, cantidad exenta: guardado 3.3400, calculado 3.3300"_s},
        {"UPDATE T10_LIQUIDACION SET T10_BASIM = 10001 WHERE T10_PRODUCTO = 4",
         u"producto 4, base imponible: guardado 100.0100, calculado 100.0000"_s},
        {"UPDATE T10_LIQUIDACION SET T10_CUOTA = 5 WHERE T10_PRODUCTO = 2",
         u"producto 2, cuota: guardado 0.0500, calculado 0.0000"_s},
        {"UPDATE T07_DECLARACIONES SET T07_TOTCUO = 1",
         u"cuota total: guardado 0.0100, calculado 2500.0500"_s}};
    for (const auto& [dano, texto] : danos) {
        Danar(dano);
        Cargar();
        EXPECT_TRUE(oDeclaraciones().Descuadrada());
        EXPECT_TRUE(Anotadas().join(u'\n').contains(texto)) << texto.toStdString();
    }
}

TEST_F(DescuadresTest, WhatIsStoredIsShownAndNothingIsChanged) {
    Danar("UPDATE T10_LIQUIDACION SET T10_CUOTA = 777 WHERE T10_PRODUCTO = 1");
    Cargar();
    EXPECT_DOUBLE_EQ(oDeclaraciones().CUOTA(1), 7.77);
    Cargar();
    EXPECT_DOUBLE_EQ(oDeclaraciones().CUOTA(1), 7.77);
    EXPECT_TRUE(pantalla.mensajes.empty());
    EXPECT_TRUE(pantalla.plataforma.empty());
}

TEST_F(DescuadresTest, TheLogHasOneLineForADifferenceARunAndIsForTheUserAlone) {
    Danar("UPDATE T07_DECLARACIONES SET T07_TOTCUO = 1");
    Cargar();
    Cargar();
    ASSERT_EQ(Anotadas().size(), 1);
    EXPECT_EQ(
        Anotadas().front(),
        u"2007-07-04 09:08:07 declaración %1, 2007/2: cuota total: guardado 0.0100, calculado 2500.0000"_s
            .arg(csdc));
    EXPECT_EQ(QFile::permissions(RutaDeDescuadres()) & (QFile::ReadGroup | QFile::ReadOther),
              QFile::Permissions());
    Danar("UPDATE T07_DECLARACIONES SET T07_TOTCUO = 2");
    Cargar();
    EXPECT_EQ(Anotadas().size(), 2);
}

TEST_F(DescuadresTest, AWildFigureIsADifferenceAndNoFailure) {
    Danar("UPDATE T08_ANEXOS SET T08_BASIM = 1e300 WHERE T08_PRODUCTO = 1");
    Cargar();
    EXPECT_TRUE(oDeclaraciones().Descuadrada());
}
