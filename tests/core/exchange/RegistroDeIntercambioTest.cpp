#include "core/exchange/RegistroDeIntercambio.h"

#include "core/base/Regional.h"
#include "tests/support/DatosDeIntercambio.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

namespace {

/// The line of `DeclaranteDePrueba(u"12345678Z")`.
const QString kLinea =
    u"12345678Z"
    u"ÑANDÚ, S.L.                             "
    u"CL"
    u"MAYOR                         "
    u"00012A I 3ºDCH2020001001"
    u"ABARZELAI                "
    u"9430123456"_s;

/// The line of a declarant with one element changed.
QString LineaCon(int elemento, const Valor& valor) {
    Registro declarante = DeclaranteDePrueba(u"12345678Z"_s);
    declarante.at(static_cast<std::size_t>(elemento)) = valor;
    return LineaDeDeclarante(declarante);
}

QStringList Valores(const Tabla& registro) {
    QStringList valores;
    for (int fila = 1; fila <= 15; ++fila) {
        valores += registro(0, fila).aTexto();
    }
    return valores;
}

}  // namespace

TEST(RegistroDeIntercambioTest, ARecordHas140CharactersWithTheFieldsAtTheirPlaces) {
    const std::vector<std::tuple<int, int, QString, bool>> esperados{
        {1, 9, u"NIF"_s, false},          {10, 40, u"Nombre"_s, false}, {50, 2, u"Siglas"_s, false},
        {52, 30, u"ViaPublica"_s, false}, {82, 5, u"Numero"_s, true},   {87, 2, u"Letra"_s, false},
        {89, 2, u"Escalera"_s, false},    {91, 2, u"Piso"_s, false},    {93, 3, u"Mano"_s, false},
        {96, 2, u"Provincia"_s, true},    {98, 5, u"CP"_s, true},       {103, 3, u"CM"_s, true},
        {106, 25, u"Municipio"_s, false}, {131, 3, u"Prefijo"_s, true}, {134, 7, u"Telefono"_s, true}};
    ASSERT_EQ(kCamposDeIntercambio.size(), esperados.size());
    for (std::size_t i = 0; i < esperados.size(); ++i) {
        const CampoDeIntercambio& campo = kCamposDeIntercambio.at(i);
        EXPECT_EQ(std::tuple(campo.posicion, campo.ancho, campo.nombre.toString(),
                             campo.clase == ClaseDeCampo::Numero),
                  esperados.at(i));
    }
    EXPECT_EQ(kLargoDeRegistro, 140);
}

TEST(RegistroDeIntercambioTest, ALineHasTheFieldsOfTheServersRecordInTheirOrder) {
    EXPECT_EQ(LineaDeDeclarante(DeclaranteDePrueba(u"12345678Z"_s)), kLinea);
    EXPECT_EQ(kLinea.size(), 140);
}

TEST(RegistroDeIntercambioTest, TextIsPaddedOnTheRightUpToItsWidth) {
    EXPECT_EQ(RellenarTexto(u"12345678Z"_s, 9, u' '), u"12345678Z"_s);
    EXPECT_EQ(RellenarTexto(u"A"_s, 3, u' '), u"A  "_s);
    EXPECT_EQ(RellenarTexto(QString(), 2, u'*'), u"**"_s);
}

TEST(RegistroDeIntercambioTest, TextLongerThanItsFieldIsCutToTwentyCharactersWhateverTheWidth) {
    const QString largo = QString(41, u'N');
    EXPECT_EQ(RellenarTexto(largo, 40, u' '), QString(20, u'N') + QString(20, u' '));
    EXPECT_EQ(RellenarTexto(QString(26, u'M'), 25, u' '), QString(20, u'M') + QString(5, u' '));
    EXPECT_EQ(RellenarTexto(QString(25, u'M'), 25, u' '), QString(25, u'M'));
    EXPECT_EQ(LineaCon(2, largo).mid(9, 40), QString(20, u'N') + QString(20, u' '));
    EXPECT_EQ(LineaCon(13, QString(26, u'M')).mid(105, 25), QString(20, u'M') + QString(5, u' '));
}

TEST(RegistroDeIntercambioTest, TextTooLongForAFieldOfLessThanTwentyCharactersIsAFailureThatShowsIt) {
    EXPECT_EQ(NumeroDelError([] { (void)LineaCon(6, u"BIS"_s); }), 5);
    EXPECT_EQ(NumeroDelError([] { (void)LineaCon(9, u"DCHA"_s); }), 5);
    EXPECT_EQ(NumeroDelError([] { (void)LineaCon(1, u"1234567890"_s); }), 5);
    EXPECT_TRUE(DescripcionDelError([] { (void)LineaCon(6, u"BIS"_s); }).contains(u"\"BIS\" no cabe en 2"));
    EXPECT_EQ(NumeroDelError([] { (void)RellenarTexto(QString(30, u'X'), 19, u' '); }), 5);
}

TEST(RegistroDeIntercambioTest, NumbersArePaddedWithZerosOnTheLeftWhateverTheSettings) {
    FijarRegional({.decimal = u'.', .grupo = u','});
    EXPECT_EQ(RellenarNumero(Valor(qint32{12}), 5, u'0'), u"00012"_s);
    EXPECT_EQ(RellenarNumero(Valor(qint16{0}), 3, u'0'), u"000"_s);
    EXPECT_EQ(RellenarNumero(Valor(u"7"_s), 2, u'0'), u"07"_s);
    EXPECT_EQ(LineaCon(15, qint32{9'999'999}).right(7), u"9999999"_s);
    FijarRegional({});
}

TEST(RegistroDeIntercambioTest, ANumberWithTooManyDigitsIsWrittenWholeAndTheLaterFieldsShift) {
    const QString linea = LineaCon(5, qint32{123'456});
    EXPECT_EQ(linea.size(), 141);
    EXPECT_EQ(linea.mid(81, 6), u"123456"_s);
    EXPECT_EQ(linea.mid(87), kLinea.mid(86));
}

TEST(RegistroDeIntercambioTest, AnEmptyNumberFieldIsAFailure) {
    EXPECT_EQ(NumeroDelError([] { (void)LineaCon(5, QString()); }), 13);
    EXPECT_EQ(NumeroDelError([] { (void)LineaCon(5, Valor::Nulo()); }), 94);
    EXPECT_EQ(NumeroDelError([] { (void)RellenarNumero(3e9, 7, u'0'); }), 6);
}

TEST(RegistroDeIntercambioTest, ADeclarantWithoutATelephoneIsWrittenWithZeros) {
    Registro declarante = DeclaranteDePrueba(u"12345678Z"_s);
    declarante[14] = qint16{0};
    declarante[15] = qint32{0};
    EXPECT_EQ(LineaDeDeclarante(declarante).right(10), u"0000000000"_s);
    EXPECT_EQ(TrocearRegistro(LineaDeDeclarante(declarante))(0, 14).aEntero16(), 0);
}

TEST(RegistroDeIntercambioTest, TheReaderGivesValuesAsCutAndTheNamesOfTheFields) {
    const Tabla registro = TrocearRegistro(kLinea);
    EXPECT_EQ(registro.UltimaColumna(), 1);
    ASSERT_EQ(registro.UltimaFila(), 17);
    EXPECT_EQ(
        Valores(registro),
        QStringList({u"12345678Z"_s, u"ÑANDÚ, S.L.                             "_s, u"CL"_s,
                     u"MAYOR                         "_s, u"00012"_s, u"A "_s, u"I "_s, u"3º"_s, u"DCH"_s,
                     u"20"_s, u"20001"_s, u"001"_s, u"ABARZELAI                "_s, u"943"_s, u"0123456"_s}));
    for (int fila = 1; fila <= 15; ++fila) {
        EXPECT_EQ(registro(1, fila),
                  Valor(kCamposDeIntercambio.at(static_cast<std::size_t>(fila - 1)).nombre.toString()));
    }
    for (const int fila : {0, 16, 17}) {
        EXPECT_TRUE(registro(0, fila).EsVacio());
        EXPECT_TRUE(registro(1, fila).EsVacio());
    }
}

TEST(RegistroDeIntercambioTest, TheLengthOfALineIsNotChecked) {
    for (const Valor& valor : {TrocearRegistro(QString())(0, 1), TrocearRegistro(QString())(0, 15)}) {
        EXPECT_EQ(valor, Valor(QString()));
    }
    EXPECT_EQ(TrocearRegistro(kLinea.left(51))(0, 3), Valor(u"CL"_s));
    EXPECT_EQ(TrocearRegistro(kLinea.left(50))(0, 3), Valor(u"C"_s));
    EXPECT_EQ(TrocearRegistro(kLinea.left(50))(0, 4), Valor(QString()));
    EXPECT_EQ(TrocearRegistro(kLinea + u"COLA"_s), TrocearRegistro(kLinea));
}

RC_GTEST_PROP(RegistroDeIntercambioTest, WhatTheReaderCutsIsTheLineAgain, (const std::u16string& texto)) {
    const QString linea = QString::fromStdU16String(texto) + kLinea;
    RC_ASSERT(Valores(TrocearRegistro(linea)).join(QString()) == linea.left(140));
}
