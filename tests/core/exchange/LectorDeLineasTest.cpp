#include "core/exchange/LectorDeLineas.h"

#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>

#include "tests/support/Imprimibles.h"
#include "tests/support/Propiedades.h"

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype kLargo = 140;

QList<QByteArray> Lineas(QByteArray texto, qsizetype largo = kLargo) {
    QBuffer dispositivo(&texto);
    dispositivo.open(QIODevice::ReadOnly);
    LectorDeLineas lector(dispositivo, largo);
    QList<QByteArray> lineas;
    while (const auto linea = lector.Siguiente()) {
        lineas += linea->toByteArray();
    }
    EXPECT_FALSE(lector.Siguiente().has_value());
    return lineas;
}

QList<QByteArray> Lista(std::initializer_list<const char*> lineas) { return {lineas.begin(), lineas.end()}; }

}  // namespace

TEST(LectorDeLineasTest, ALineEndsInCrLfInCrOrInLf) {
    EXPECT_EQ(Lineas("a\r\nb\rc\nd\r\n"), Lista({"a", "b", "c", "d"}));
    EXPECT_EQ(Lineas("a\n\rb"), Lista({"a", "", "b"}));
    EXPECT_EQ(Lineas("\r\r\n\n"), Lista({"", "", ""}));
}

TEST(LectorDeLineasTest, TheLastLineMayLackItsEnd) {
    EXPECT_EQ(Lineas("a\r\nb"), Lista({"a", "b"}));
    EXPECT_EQ(Lineas("a"), Lista({"a"}));
}

TEST(LectorDeLineasTest, AnEmptyFileHasNoLines) {
    EXPECT_TRUE(Lineas("").isEmpty());
    EXPECT_EQ(Lineas("\r\n"), Lista({""}));
}

TEST(LectorDeLineasTest, ALongLineLosesItsTailAndNothingElse) {
    EXPECT_EQ(Lineas("12345678\r\nabc\r\n", 5), Lista({"12345", "abc"}));
    EXPECT_EQ(Lineas(QByteArray(300'000, 'x') + "\r\nfin", 5), Lista({"xxxxx", "fin"}));
    EXPECT_EQ(Lineas(QByteArray(300'000, 'x'), 5), Lista({"xxxxx"}));
}

TEST(LectorDeLineasTest, EndsOfLinesOnTheBordersOfItsBlocksAreFound) {
    // Every place of the end around a border, with each of the ends.
    for (const QByteArray fin : {"\r\n", "\r", "\n"}) {
        for (int largo = 65'530; largo < 65'540; ++largo) {
            const QByteArray primera(largo, 'x');
            EXPECT_EQ(Lineas(primera + fin + "b" + fin + "c", 70'000),
                      (QList<QByteArray>{primera, "b", "c"}));
            EXPECT_EQ(Lineas(primera + fin, 70'000), (QList<QByteArray>{primera}));
        }
    }
}

RC_GTEST_PROP(LectorDeLineasTest, LinesComeBackAsTheyWereWritten, ()) {
    const auto bytes = rc::gen::container<std::string>(rc::gen::inRange<char>(' ', '~'));
    const auto lineas = *rc::gen::container<std::vector<std::string>>(bytes);
    QByteArray texto;
    QList<QByteArray> esperadas;
    for (const std::string& linea : lineas) {
        const bool conOtraVacia = *rc::gen::arbitrary<bool>();
        texto += QByteArray::fromStdString(linea) + (conOtraVacia ? "\r\n\r\n" : "\r\n");
        esperadas += QByteArray::fromStdString(linea);
        if (conOtraVacia) {
            esperadas += QByteArray();
        }
    }
    RC_ASSERT(Lineas(texto, 1000) == esperadas);
}

TEST(LectorDeLineasTest, AFileThatIsNotTextIsAFailureThatNamesIt) {
    const QTemporaryDir carpeta;
    QFile fichero(carpeta.filePath(u"imagen.txt"_s));
    ASSERT_TRUE(fichero.open(QIODevice::ReadWrite));
    fichero.write(QByteArray("una línea\r\nPNG\0\0\r\n", 19));
    fichero.seek(0);
    LectorDeLineas lector(fichero, kLargo);
    const auto leer = [&] {
        while (lector.Siguiente()) {
        }
    };
    const QString descripcion = DescripcionDelError(leer);
    EXPECT_TRUE(descripcion.contains(u"imagen.txt"));
    EXPECT_TRUE(descripcion.contains(u"no es de texto"));
}

TEST(LectorDeLineasTest, AFileThatCannotBeReadIsAFailureThatNamesItAndTheCause) {
    // Its beginning is no memory of this process: it opens and cannot be read.
    QFile fichero(u"/proc/self/mem"_s);
    ASSERT_TRUE(fichero.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    LectorDeLineas lector(fichero, kLargo);
    EXPECT_EQ(NumeroDelError([&] { (void)lector.Siguiente(); }), 57);
    EXPECT_TRUE(DescripcionDelError([&] { (void)lector.Siguiente(); }).contains(u"/proc/self/mem: "));
}
