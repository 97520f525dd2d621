#include "core/records/cZTListaDeclarantes.h"

#include "core/records/cZTDeclarante.h"
#include "tests/support/EntornoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class cZTListaDeclarantesTest : public EntornoDePrueba {
  protected:
    static qint32 Guardar(const QString& nif, const QString& nombre) {
        cZTDeclarante& d = oDeclarante();
        d.Modo = cZTDeclarante::kModoNuevo;
        d.InicializaDatos();
        d.NIF = nif;
        d.Nombre = nombre;
        d.Munici = u"HIRI"_s;
        return d.GuardarDeclarante();
    }
};

}  // namespace

TEST_F(cZTListaDeclarantesTest, GivesKeyNifNameMunicipalityAndProvinceInRowsFrom1) {
    const qint32 csde = Guardar(u"12345678Z"_s, u"UNO"_s);
    const Tabla lista = oListaDeclarantes().ObtenerDeclarantes();
    ASSERT_EQ(lista.UltimaFila(), 1);
    EXPECT_EQ(lista(0, 1), Valor(csde));
    EXPECT_EQ(lista(1, 1), Valor(u"12345678Z"_s));
    EXPECT_EQ(lista(2, 1), Valor(u"UNO"_s));
    EXPECT_EQ(lista(3, 1), Valor(u"HIRI"_s));
    EXPECT_EQ(lista(4, 1), Valor(qint16{20}));
}

TEST_F(cZTListaDeclarantesTest, IsNullWithoutDeclarants) {
    EXPECT_TRUE(oListaDeclarantes().ObtenerDeclarantes().EsNula());
}

TEST_F(cZTListaDeclarantesTest, DoesNotKeepWhatItGives) {
    Guardar(u"12345678Z"_s, u"UNO"_s);
    (void)oListaDeclarantes().ObtenerDeclarantes();
    EXPECT_TRUE(oListaDeclarantes().vBufferDeclarantes.EsNula());
}

TEST_F(cZTListaDeclarantesTest, AFailureClimbsUnderItsFixedName) {
    Entorno().mdbmod = Entorno().mdbPath + u"NoExiste.mdb"_s;
    const QString descripcion = DescripcionDelError([] { (void)oListaDeclarantes().ObtenerDeclarantes(); });
    EXPECT_TRUE(descripcion.startsWith(u"cListaDeclarantes.ObtenerDeclarantes\r\n"_s));
    EXPECT_TRUE(pantalla.errores.empty());
}
