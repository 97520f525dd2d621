#include "core/services/svrZELT/cZTDeclarante.h"

#include "core/services/svrZELT/cZTAnexos.h"
#include "tests/support/DatosDePrueba.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

namespace {

class cZTDeclaranteTest : public testing::Test {
  protected:
    [[nodiscard]] svrZELT::cZTDeclarante Servidor() const { return m_almacen.Con<svrZELT::cZTDeclarante>(); }
    [[nodiscard]] Registro Cargar(qint32 CSDE) const {
        Registro r;
        Servidor().CargarDeclarante(CSDE, r);
        return r;
    }
    [[nodiscard]] int Cuenta(const char* sql) const {
        return m_almacen.Usuario()->Base().execAndGet(sql).getInt();
    }

    AlmacenTemporal m_almacen;
};

/// The record of a line of the exchange file: values as cut out of the line, in column 0.
Tabla Linea() {
    const QStringList valores{u"11111111H"_s, u"PEREZ LOPEZ, ANA  "_s,
                              u"CL"_s,        u"MAYOR    "_s,
                              u"00012"_s,     u"A "_s,
                              u"  "_s,        u"3 "_s,
                              u"DCH"_s,       u"20"_s,
                              u"20001"_s,     u"001"_s,
                              u"ABA "_s,      u"943"_s,
                              u"0123456"_s};
    Tabla registro(1, 17);
    for (int i = 0; i < valores.size(); ++i) {
        registro(0, i + 1) = valores.at(i);
        registro(1, i + 1) = u"Campo"_s;
    }
    return registro;
}

QString Texto(const std::u16string& texto) {
    return QString::fromUtf8(QString::fromStdU16String(texto).toUtf8());
}

}  // namespace

TEST_F(cZTDeclaranteTest, ANewDeclarantIsLoadedAsItWasStored) {
    Registro guardado = RegistroDeDeclarante(u"11111111H"_s, u"ÑANDÚ, S.L."_s);
    const qint32 CSDE = Servidor().GuardarDeclarante(guardado);
    EXPECT_GT(CSDE, 0);
    guardado[0] = CSDE;
    EXPECT_EQ(Cargar(CSDE), guardado);
    CerrarAlmacenes();
    EXPECT_EQ(Cargar(CSDE), guardado);
}

RC_GTEST_FIXTURE_PROP(cZTDeclaranteTest, WhateverIsStoredIsLoaded,
                      (const std::u16string& a, const std::u16string& b, const std::u16string& c,
                       qint32 numero, qint16 provincia, qint32 postal, qint16 municipio, qint16 prefijo,
                       qint32 telefono)) {
    Registro r = RegistroDeDeclarante(Texto(a), Texto(b));
    r[13] = Texto(c);
    r[5] = numero;
    r[10] = provincia;
    r[11] = postal;
    r[12] = municipio;
    r[14] = prefijo;
    r[15] = telefono;
    const qint32 CSDE = Servidor().GuardarDeclarante(r);
    r[0] = CSDE;
    RC_ASSERT(Cargar(CSDE) == r);
    r[2] = Texto(c);
    RC_ASSERT(Servidor().GuardarDeclarante(r) == CSDE);
    RC_ASSERT(Cargar(CSDE) == r);
}

TEST_F(cZTDeclaranteTest, AnUnknownKeyLoadsAsBlanksAndZeros) {
    const Registro r = Cargar(99);
    ASSERT_EQ(r.size(), 18U);
    EXPECT_EQ(r[0], Valor(qint32{0}));
    EXPECT_EQ(r[1], Valor(QString()));
    EXPECT_EQ(r[5], Valor(qint32{0}));
    EXPECT_EQ(r[10], Valor(qint16{0}));
    EXPECT_TRUE(r[16].EsVacio());
    EXPECT_TRUE(r[17].EsVacio());
}

TEST_F(cZTDeclaranteTest, AKeySetChangesThatDeclarantOnly) {
    const qint32 a = GuardarDeclarante(m_almacen, u"A"_s, u"UNO"_s);
    const qint32 b = GuardarDeclarante(m_almacen, u"B"_s, u"DOS"_s);
    Registro r = RegistroDeDeclarante(u"C"_s, u"TRES"_s);
    r[0] = a;
    EXPECT_EQ(Servidor().GuardarDeclarante(r), a);
    EXPECT_EQ(Cargar(a)[2], Valor(u"TRES"_s));
    EXPECT_EQ(Cargar(b)[2], Valor(u"DOS"_s));
}

TEST_F(cZTDeclaranteTest, AChangeOfADeclarantThatIsGoneIsRaised) {
    Registro r = RegistroDeDeclarante(u"A"_s, u"UNO"_s);
    r[0] = qint32{7};
    EXPECT_EQ(NumeroDelError([&] { (void)Servidor().GuardarDeclarante(r); }), 3075);
    EXPECT_TRUE(Servidor().ObtenerDeclarantes().EsNula());
}

TEST_F(cZTDeclaranteTest, ARecordThatCannotBeConvertedStoresNothing) {
    Registro r = RegistroDeDeclarante(u"A"_s, u"UNO"_s);
    r[5] = u"doce"_s;
    EXPECT_EQ(NumeroDelError([&] { (void)Servidor().GuardarDeclarante(r); }), 13);
    r[5] = 3e9;
    EXPECT_EQ(NumeroDelError([&] { (void)Servidor().GuardarDeclarante(r); }), 6);
    r[5] = Valor::Nulo();
    EXPECT_EQ(NumeroDelError([&] { (void)Servidor().GuardarDeclarante(r); }), 94);
    EXPECT_EQ(NumeroDelError([&] { (void)Servidor().GuardarDeclarante(Registro(3)); }), 9);
    EXPECT_TRUE(Servidor().ObtenerDeclarantes().EsNula());
}

TEST_F(cZTDeclaranteTest, KeysAreNeverUsedAgain) {
    const qint32 a = GuardarDeclarante(m_almacen, u"A"_s);
    Servidor().EliminarDeclarante(a);
    CerrarAlmacenes();
    EXPECT_GT(GuardarDeclarante(m_almacen, u"A"_s), a);
}

TEST_F(cZTDeclaranteTest, ARepeatedNifGivesTheKeyOfItsDeclarant) {
    EXPECT_EQ(Servidor().NifRepetido(u"11111111H"_s), 0);
    const qint32 a = GuardarDeclarante(m_almacen, u"11111111H"_s);
    EXPECT_EQ(Servidor().NifRepetido(u"11111111H"_s), a);
    EXPECT_EQ(Servidor().NifRepetido(u"11111111h"_s), a);
    EXPECT_EQ(Servidor().NifRepetido(u" 11111111H  "_s), a);
    EXPECT_EQ(Servidor().NifRepetido(u"11111111"_s), 0);
    EXPECT_EQ(Servidor().NifRepetido(u"%"_s), 0);
    EXPECT_EQ(Servidor().NifRepetido(QString()), 0);
}

TEST_F(cZTDeclaranteTest, TwoDeclarantsMayHaveTheSameNif) {
    const qint32 a = GuardarDeclarante(m_almacen, u"A"_s);
    EXPECT_GT(GuardarDeclarante(m_almacen, u"A"_s), a);
    EXPECT_EQ(Servidor().NifRepetido(u"A"_s), a);
}

TEST_F(cZTDeclaranteTest, TheListHasFiveColumnsAndRowsFromOne) {
    EXPECT_TRUE(Servidor().ObtenerDeclarantes().EsNula());
    const qint32 b = GuardarDeclarante(m_almacen, u"B"_s, u"DOS"_s);
    const qint32 a = GuardarDeclarante(m_almacen, u"A"_s, u"UNO"_s);
    const Tabla lista = Servidor().ObtenerDeclarantes();
    EXPECT_EQ(lista.UltimaColumna(), 4);
    ASSERT_EQ(lista.UltimaFila(), 2);
    EXPECT_EQ(lista(0, 1), Valor(a));
    EXPECT_EQ(lista(1, 1), Valor(u"A"_s));
    EXPECT_EQ(lista(2, 1), Valor(u"UNO"_s));
    EXPECT_EQ(lista(3, 1), Valor(u"ABARZELAI"_s));
    EXPECT_EQ(lista(4, 1), Valor(qint16{20}));
    EXPECT_EQ(lista(0, 2), Valor(b));
}

TEST_F(cZTDeclaranteTest, DeletingADeclarantLeavesNothingOfHisAndAllOfTheOthers) {
    for (const QString& nif : {u"A"_s, u"B"_s}) {
        const qint32 CSDE = GuardarDeclarante(m_almacen, nif);
        const qint32 CSES = GuardarEstablecimiento(m_almacen, CSDE, u"20ES123Y"_s);
        const qint32 CSDC = GuardarDeclaracion(m_almacen, CSDE, 2010, 1);
        Tabla lineas(7, 1);
        lineas(2, 1) = CSES;
        lineas(3, 1) = qint16{1};
        lineas(4, 1) = 100.0;
        lineas(5, 1) = 100.0;
        lineas(6, 1) = 24e6;
        ASSERT_TRUE(m_almacen.Con<svrZELT::cZTAnexos>().GuardarAnexos(lineas, std::nullopt, CSDC));
    }
    Servidor().EliminarDeclarante(Servidor().NifRepetido(u"A"_s));
    EXPECT_EQ(Servidor().ObtenerDeclarantes().UltimaFila(), 1);
    EXPECT_EQ(Cuenta("SELECT count(*) FROM T06_ESTABLECIMIENTOS"), 1);
    EXPECT_EQ(Cuenta("SELECT count(*) FROM T07_DECLARACIONES"), 1);
    EXPECT_EQ(Cuenta("SELECT count(*) FROM T08_ANEXOS"), 1);
    EXPECT_EQ(Cuenta("SELECT count(*) FROM T10_LIQUIDACION"), 6);
    Servidor().EliminarDeclarante(12345);
    EXPECT_EQ(Servidor().ObtenerDeclarantes().UltimaFila(), 1);
}

TEST_F(cZTDeclaranteTest, AnImportedLineIsStoredWithoutTheBlanksOnItsRight) {
    Servidor().ImportarDte(Linea());
    const qint32 CSDE = Servidor().NifRepetido(u"11111111H"_s);
    const Registro esperado{CSDE,           u"11111111H"_s, u"PEREZ LOPEZ, ANA"_s,
                            u"CL"_s,        u"MAYOR"_s,     qint32{12},
                            u"A"_s,         QString(),      u"3"_s,
                            u"DCH"_s,       qint16{20},     qint32{20001},
                            qint16{1},      u"ABA"_s,       qint16{943},
                            qint32{123456}, Valor(),        Valor()};
    EXPECT_EQ(Cargar(CSDE), esperado);
}

TEST_F(cZTDeclaranteTest, AnImportedLineWithAKeyReplacesThatDeclarant) {
    const qint32 CSDE = GuardarDeclarante(m_almacen, u"11111111H"_s, u"ANTES"_s);
    Tabla linea = Linea();
    linea(0, 0) = CSDE;
    Servidor().ImportarDte(linea);
    EXPECT_EQ(Servidor().ObtenerDeclarantes().UltimaFila(), 1);
    EXPECT_EQ(Cargar(CSDE)[2], Valor(u"PEREZ LOPEZ, ANA"_s));
}

TEST_F(cZTDeclaranteTest, AnImportedNumberIsConvertedStrictly) {
    Tabla linea = Linea();
    linea(0, 5) = u"12a  "_s;
    EXPECT_EQ(NumeroDelError([&] { Servidor().ImportarDte(linea); }), 13);
    linea(0, 5) = u"     "_s;
    EXPECT_EQ(NumeroDelError([&] { Servidor().ImportarDte(linea); }), 13);
    EXPECT_TRUE(Servidor().ObtenerDeclarantes().EsNula());
}

TEST_F(cZTDeclaranteTest, CodesUnknownToTheCodeTablesAreStored) {
    Tabla linea = Linea();
    linea(0, 3) = u"ZZ"_s;
    linea(0, 10) = u"99"_s;
    linea(0, 12) = u"999"_s;
    Servidor().ImportarDte(linea);
    EXPECT_EQ(Servidor().ObtenerDeclarantes()(4, 1), Valor(qint16{99}));
}

TEST_F(cZTDeclaranteTest, AStoreThatIsBusyRefusesTheSaveAndKeepsNothingOfIt) {
    SQLite::Database otra(m_almacen.mdbmod().toStdString(), SQLite::OPEN_READWRITE);
    otra.exec("BEGIN IMMEDIATE");
    EXPECT_EQ(NumeroDelError([&] { (void)GuardarDeclarante(m_almacen, u"A"_s); }), 3260);
    otra.exec("ROLLBACK");
    EXPECT_TRUE(Servidor().ObtenerDeclarantes().EsNula());
}

TEST_F(cZTDeclaranteTest, NumbersOutsideTheirRangeInAForeignFileOverflow) {
    const qint32 CSDE = GuardarDeclarante(m_almacen, u"A"_s);
    auto& base = m_almacen.Usuario()->Base();
    base.exec("PRAGMA ignore_check_constraints = ON");
    base.exec("UPDATE T05_DECLARANTES SET T05_PROVIN = 40000");
    EXPECT_EQ(NumeroDelError([&] { (void)Cargar(CSDE); }), 6);
}

TEST_F(cZTDeclaranteTest, ASaveOverWhatAnotherProgramHasChangedIsRefused) {
    const qint32 clave = GuardarDeclarante(m_almacen, u"11111111H"_s);
    Registro uno;
    Registro otro;
    EstadoLeido leidoPorUno;
    EstadoLeido leidoPorOtro;
    Servidor().CargarDeclarante(clave, uno, &leidoPorUno);
    Servidor().CargarDeclarante(clave, otro, &leidoPorOtro);
    uno[2] = u"NOMBRE NUEVO"_s;
    otro[4] = u"CALLE NUEVA"_s;
    EXPECT_EQ(Servidor().GuardarDeclarante(uno, &leidoPorUno), clave);
    EXPECT_EQ(NumeroDelError([&] { (void)Servidor().GuardarDeclarante(otro, &leidoPorOtro); }), 3197);
    EXPECT_EQ(Cargar(clave), uno);
    uno[4] = u"PLAZA"_s;
    EXPECT_EQ(Servidor().GuardarDeclarante(uno, &leidoPorUno), clave);
    EXPECT_EQ(Cargar(clave), uno);
}

TEST_F(cZTDeclaranteTest, ASaveOfADeclarantWhomAnotherProgramHasDeletedIsRefused) {
    const qint32 clave = GuardarDeclarante(m_almacen, u"11111111H"_s);
    Registro r;
    EstadoLeido leido;
    Servidor().CargarDeclarante(clave, r, &leido);
    Servidor().EliminarDeclarante(clave);
    EXPECT_EQ(NumeroDelError([&] { (void)Servidor().GuardarDeclarante(r, &leido); }), 3197);
}

TEST_F(cZTDeclaranteTest, WorkOnTheReturnsOfADeclarantIsNoChangeOfHisRecord) {
    const qint32 clave = GuardarDeclarante(m_almacen, u"11111111H"_s);
    Registro r;
    EstadoLeido leido;
    Servidor().CargarDeclarante(clave, r, &leido);
    (void)GuardarDeclaracion(m_almacen, clave, 2010, 1);
    EXPECT_EQ(Servidor().GuardarDeclarante(r, &leido), clave);
}

TEST_F(cZTDeclaranteTest, ANewDeclarantCanBeSavedAgainWithTheStateOfHisFirstSave) {
    Registro r = RegistroDeDeclarante(u"11111111H"_s, u"EMPRESA"_s);
    EstadoLeido leido;
    r[0] = Servidor().GuardarDeclarante(r, &leido);
    EXPECT_EQ(Servidor().GuardarDeclarante(r, &leido), r[0].aEntero32());
}
