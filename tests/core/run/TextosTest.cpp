#include "core/run/Textos.h"

#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <array>
#include <set>

#include "core/run/Entorno.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"
#include "tests/support/TextoPorNumero.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kOffset = 1000;

class TextosTest : public testing::Test {
  protected:
    void TearDown() override { Entorno().OffsetIdioma = 0; }
};

bool Existe(int fila) {
    return NumeroDelError([fila] { (void)TextoDeFila(fila); }) == 0;
}

int Cuenta(int desde, int hasta) {
    int cuenta = 0;
    for (int fila = desde; fila <= hasta; ++fila) {
        cuenta += Existe(fila) ? 1 : 0;
    }
    return cuenta;
}

}  // namespace

TEST_F(TextosTest, TheTableHas202CastellanoAnd204EuskeraRowsAndNoOthers) {
    EXPECT_EQ(Cuenta(1, 224), 202);
    EXPECT_EQ(Cuenta(1001, 1224), 204);
    EXPECT_EQ(Cuenta(-10, 2000), 202 + 204);
}

TEST_F(TextosTest, TheHolesAreExactlyTheOnesOfTheTable) {
    std::set<int> castellano{106, 107, 153, 154, 158, 159, 160, 162, 163, 166, 175,
                             178, 192, 195, 196, 197, 198, 199, 200, 201, 203, 223};
    std::set<int> euskera{106, 107, 108, 152, 158, 159, 160, 162, 163, 166,
                          175, 178, 192, 195, 196, 197, 198, 199, 200, 201};
    for (int id = 1; id <= 224; ++id) {
        EXPECT_EQ(Existe(id), !castellano.contains(id)) << id;
        EXPECT_EQ(Existe(id + kOffset), !euskera.contains(id)) << id;
    }
}

TEST_F(TextosTest, TheOffsetIsAddedAtEveryLookUp) {
    EXPECT_EQ(Texto(2), u"Dec&larante"_s);
    Entorno().OffsetIdioma = kOffset;
    EXPECT_EQ(Texto(2), u"&Aitortzailea"_s);
    Entorno().OffsetIdioma = 0;
    EXPECT_EQ(Texto(2), u"Dec&larante"_s);
}

TEST_F(TextosTest, ARowThatDoesNotExistIsARunTimeFailureWithoutFallback) {
    EXPECT_EQ(Texto(108), u"El fichero seleccionado existe. ¿Desea sobreescribirlo?"_s);
    Entorno().OffsetIdioma = kOffset;
    EXPECT_EQ(NumeroDelError([] { (void)Texto(108); }), 326);
    EXPECT_EQ(NumeroDelError([] { (void)Texto(152); }), 326);
    EXPECT_TRUE(DescripcionDelError([] { (void)Texto(108); }).contains(u"'1108'"));
    EXPECT_EQ(Texto(153), u"Aurkezlearekin"_s);
    Entorno().OffsetIdioma = 0;
    EXPECT_EQ(NumeroDelError([] { (void)Texto(153); }), 326);
    EXPECT_EQ(NumeroDelError([] { (void)Texto(106); }), 326);
}

TEST_F(TextosTest, EveryNamedTextHasItsRowsInBothLanguages) {
    // Rows that the table lacks although the program asks for them: see the holes above.
    const std::set<int> sinFila{106, 335, 336, 1106, 1108, 1335, 1336};
    static const QRegularExpression nombrada(u"^ +(\\w+) = (\\d+),$"_s, QRegularExpression::MultilineOption);
    const QString lista =
        QString::fromUtf8(LeerFichero(QStringLiteral(ZELT_FUENTES "/core/run/IdDeTexto.h")));
    int nombradas = 0;
    for (auto i = nombrada.globalMatch(lista); i.hasNext(); ++nombradas) {
        const auto fila = i.next();
        for (const int id : {fila.captured(2).toInt(), fila.captured(2).toInt() + kOffset}) {
            EXPECT_EQ(Existe(id), !sinFila.contains(id)) << fila.captured(1).toStdString() << ' ' << id;
        }
    }
    EXPECT_GT(nombradas, 100);
    EXPECT_EQ(TextoEn(Id::Aceptar, kOffsetEuskera), TextoDeFila(1028));
    EXPECT_EQ(Texto(Id::PrimerTrimestre + 3), TextoDeFila(42));
}

TEST_F(TextosTest, BlanksAtTheEndsCount) {
    EXPECT_EQ(Texto(95), u"   &Guardar cambios"_s);
    EXPECT_EQ(Texto(98), u"      &Datos Estable. "_s);
    EXPECT_EQ(Texto(57), u"¿Está seguro de querer borrar el declarante "_s);
    EXPECT_EQ(TextoDeFila(1037), u"Ekitaldia "_s);
    EXPECT_EQ(TextoDeFila(1082), u" urtea baino beranduagokoa izan behar da"_s);
    EXPECT_EQ(TextoDeFila(1213), u"Akatsa gertatu da eguneratze datuak berreskuratu edo irakurtzean "_s);
}

TEST_F(TextosTest, TheTableIsTheAgreedOneByteForByte) {
    QFile tabla(u":/textos/tabla.txt"_s);
    ASSERT_TRUE(tabla.open(QIODevice::ReadOnly));
    EXPECT_EQ(QCryptographicHash::hash(tabla.readAll(), QCryptographicHash::Sha256).toHex(),
              QByteArray("b85ea14be40946d5b3bc126c735da04d9a667e5b5dd220ddb2b2b79e184f887e"));
}

TEST_F(TextosTest, TextsOutsideTheTableAreChosenByTheLanguage) {
    EXPECT_EQ(IDI(u"a"_s, u"b"_s), u"a"_s);
    Entorno().OffsetIdioma = kOffset;
    EXPECT_EQ(IDI(u"a"_s, u"b"_s), u"b"_s);
}

TEST_F(TextosTest, EveryTextOfTheOwnCatalogueStandsInBothLanguages) {
    QFile propios(u":/textos/propios.txt"_s);
    ASSERT_TRUE(propios.open(QIODevice::ReadOnly));
    int filas = 0;
    for (const QString& linea : QString::fromUtf8(propios.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        if (linea.startsWith(u'#')) {
            continue;
        }
        ++filas;
        const QStringList campos = linea.split(u'\t');
        ASSERT_EQ(campos.size(), 3) << linea.toStdString();
        EXPECT_FALSE(campos.at(1).isEmpty());
        EXPECT_FALSE(campos.at(2).isEmpty());
        EXPECT_EQ(TextoPropio(campos.at(0)), campos.at(1));
    }
    EXPECT_GT(filas, 0);
    EXPECT_EQ(NumeroDelError([] { (void)TextoPropio(u"no_existe"); }), 326);
}

TEST_F(TextosTest, TheCausesOfFailuresAreToldInTheLanguageInForce) {
    static const QRegularExpression clave(u"u\"(causa_\\w+)\""_s);
    static const QRegularExpression literal(
        u"Fallo(DeFichero|DeAlmacen|DeImpresora)\\([^;]*u\"[^\"]*[a-z] [a-z][^\"]*\"_s"_s);
    int causas = 0;
    for (const QString& carpeta : {u"core"_s, u"forms"_s}) {
        QDirIterator fuentes(QStringLiteral(ZELT_FUENTES "/") + carpeta, {u"*.cpp"_s}, QDir::Files,
                             QDirIterator::Subdirectories);
        while (fuentes.hasNext()) {
            const QString fuente = fuentes.next();
            const QString texto = QString::fromUtf8(LeerFichero(fuente));
            EXPECT_FALSE(literal.match(texto).hasMatch()) << fuente.toStdString();
            for (auto i = clave.globalMatch(texto); i.hasNext(); ++causas) {
                const QString esta = i.next().captured(1);
                EXPECT_NE(TextoPropioDe(esta, 0), TextoPropioDe(esta, kOffset)) << esta.toStdString();
            }
        }
    }
    EXPECT_GT(causas, 40);
}

TEST_F(TextosTest, TheFailuresOfThisProgramAreToldInTheLanguageInForceAndThoseOfTheRunTimeAsGiven) {
    constexpr std::array kPropios{
        NumError::AlmacenNoEncontrado, NumError::AlmacenSoloLectura,   NumError::AlmacenDiscoLleno,
        NumError::AlmacenErrorDisco,   NumError::AlmacenDanado,        NumError::AlmacenSinPermiso,
        NumError::AlmacenOrden,        NumError::AlmacenOcupado,       NumError::AlmacenVersion,
        NumError::AlmacenAjeno,        NumError::CaracterFueraDePagina};
    QStringList castellano;
    for (const NumError numero : kPropios) {
        castellano += TextoDeError(numero);
    }
    EXPECT_EQ(castellano.removeDuplicates(), 0);
    const QString deDisco = TextoDeError(NumError::DiscoLleno);
    Entorno().OffsetIdioma = kOffset;
    for (const NumError numero : kPropios) {
        EXPECT_FALSE(castellano.contains(TextoDeError(numero))) << static_cast<int>(numero);
    }
    EXPECT_EQ(TextoDeError(NumError::DiscoLleno), deDisco);
    EXPECT_EQ(TextoDeError(NumError::AlmacenOcupado),
              u"Beste programa bat datu-fitxategia erabiltzen ari da"_s);
}
