#include "core/services/svrZELT/cZTGeneral.h"

#include "core/services/svrZELT/cZTAnexos.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

class cZTGeneralTest : public testing::Test {
  protected:
    /// NIF of the declarants in the order of the list.
    [[nodiscard]] QStringList Orden() const {
        const Tabla lista = m_almacen.Con<svrZELT::cZTGeneral>().ExisteDec();
        QStringList nifs;
        for (int fila = 1; fila <= lista.UltimaFila(); ++fila) {
            nifs += lista(1, fila).aTexto();
        }
        return nifs;
    }

    AlmacenTemporal m_almacen;
};

}  // namespace

TEST_F(cZTGeneralTest, AnEmptyStoreHasNoDeclarants) {
    EXPECT_TRUE(m_almacen.Con<svrZELT::cZTGeneral>().ExisteDec().EsNula());
}

TEST_F(cZTGeneralTest, RowsHaveKeyNifAndNameAndBeginAtOne) {
    const qint32 CSDE = GuardarDeclarante(m_almacen, u"11111111H"_s, u"UNO"_s);
    const Tabla lista = m_almacen.Con<svrZELT::cZTGeneral>().ExisteDec();
    EXPECT_EQ(lista.UltimaColumna(), 2);
    ASSERT_EQ(lista.UltimaFila(), 1);
    EXPECT_TRUE(lista(0, 0).EsVacio());
    EXPECT_EQ(lista(0, 1), Valor(CSDE));
    EXPECT_EQ(lista(1, 1), Valor(u"11111111H"_s));
    EXPECT_EQ(lista(2, 1), Valor(u"UNO"_s));
}

TEST_F(cZTGeneralTest, TheDeclarantLastWorkedOnComesFirst) {
    const qint32 a = GuardarDeclarante(m_almacen, u"A"_s);
    const qint32 b = GuardarDeclarante(m_almacen, u"B"_s);
    const qint32 c = GuardarDeclarante(m_almacen, u"C"_s);
    EXPECT_EQ(Orden(), (QStringList{u"C"_s, u"B"_s, u"A"_s}));

    const qint32 CSES = GuardarEstablecimiento(m_almacen, a, u"20ES123Y"_s);
    EXPECT_EQ(Orden(), (QStringList{u"A"_s, u"C"_s, u"B"_s}));

    const qint32 CSDC = GuardarDeclaracion(m_almacen, b, 2010, 1);
    EXPECT_EQ(Orden(), (QStringList{u"B"_s, u"A"_s, u"C"_s}));

    Registro r = RegistroDeDeclarante(u"C"_s, u"CAMBIADO"_s);
    r[0] = c;
    (void)m_almacen.Con<svrZELT::cZTDeclarante>().GuardarDeclarante(r);
    EXPECT_EQ(Orden(), (QStringList{u"C"_s, u"B"_s, u"A"_s}));

    EXPECT_TRUE(m_almacen.Con<svrZELT::cZTAnexos>().GuardarAnexos(Tabla(), std::nullopt, CSDC));
    EXPECT_EQ(Orden(), (QStringList{u"B"_s, u"C"_s, u"A"_s}));

    m_almacen.Con<svrZELT::cZTEstablecimientos>().EliminarEstablecimiento(CSES);
    EXPECT_EQ(Orden(), (QStringList{u"A"_s, u"B"_s, u"C"_s}));

    m_almacen.Con<svrZELT::cZTDeclaraciones>().EliminarDeclaraciones(CSDC);
    EXPECT_EQ(Orden(), (QStringList{u"B"_s, u"A"_s, u"C"_s}));
}

TEST_F(cZTGeneralTest, ReadingDoesNotChangeTheOrder) {
    const qint32 a = GuardarDeclarante(m_almacen, u"A"_s);
    (void)GuardarDeclarante(m_almacen, u"B"_s);
    Registro r;
    m_almacen.Con<svrZELT::cZTDeclarante>().CargarDeclarante(a, r);
    (void)m_almacen.Con<svrZELT::cZTDeclaraciones>().ObtenerDeclaraciones(a);
    EXPECT_EQ(Orden(), (QStringList{u"B"_s, u"A"_s}));
}
