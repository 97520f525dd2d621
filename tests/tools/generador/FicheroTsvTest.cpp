#include "tools/generador/FicheroTsv.h"

#include <QTemporaryDir>

#include "tests/support/FicherosDePrueba.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

class FicheroTsvTest : public testing::Test {
  protected:
    [[nodiscard]] FicheroTsv Leer(const QByteArray& contenido) const {
        EscribirFichero(m_ruta, contenido);
        return {m_ruta, {u"A"_s, u"B"_s}};
    }
    /// Line in the message of the fault, -1 when there is no fault.
    template <class F>
    [[nodiscard]] int LineaDe(F&& cuerpo) const {
        try {
            cuerpo();
        } catch (const FallaTsv& falla) {
            const QString resto = QString::fromUtf8(falla.what()).mid(m_ruta.size() + 1);
            return resto.left(resto.indexOf(u':')).toInt();
        }
        return -1;
    }
    [[nodiscard]] int LineaDeLaFalla(const QByteArray& contenido) const {
        return LineaDe([&] { (void)Leer(contenido); });
    }

    QTemporaryDir m_carpeta;
    QString m_ruta = m_carpeta.filePath(u"t.tsv"_s);
};

}  // namespace

TEST_F(FicheroTsvTest, RowsAreReadAndCommentsAreNot) {
    const auto tabla = Leer("A\tB\n# nota\n1\tÁlava\r\n2\tx y\n");
    ASSERT_EQ(tabla.Filas().size(), 2U);
    EXPECT_EQ(tabla.Filas()[0].campos, (QStringList{u"1"_s, u"Álava"_s}));
    EXPECT_EQ(tabla.Filas()[1].linea, 4);
}

TEST_F(FicheroTsvTest, ABadRowIsToldWithItsLine) {
    EXPECT_EQ(LineaDeLaFalla("A\tC\n"), 1);
    EXPECT_EQ(LineaDeLaFalla("A\n"), 1);
    EXPECT_EQ(LineaDeLaFalla("A\tB\n1\t2\n1\n"), 3);
    EXPECT_EQ(LineaDeLaFalla("A\tB\n1\t2\t3\n"), 2);
    EXPECT_EQ(LineaDeLaFalla("A\tB\n\n"), 2);
    EXPECT_EQ(LineaDeLaFalla("A\tB\n1\t\n"), 2);
    EXPECT_EQ(LineaDeLaFalla("A\tB\n1\t x\n"), 2);
    EXPECT_EQ(LineaDeLaFalla("A\tB\n1\t2"), 0);
    EXPECT_EQ(LineaDeLaFalla("A\tB\n1\t\xFF\n"), 0);
}

TEST_F(FicheroTsvTest, AMissingFileIsAFault) {
    EXPECT_THROW(FicheroTsv(m_carpeta.filePath(u"falta.tsv"_s), {u"A"_s}), FallaTsv);
}

TEST_F(FicheroTsvTest, NumbersAreStrict) {
    const auto tabla = Leer("A\tB\n12\t24.000000\n1x\t24.5\n99\t-1.000000\n");
    const auto& filas = tabla.Filas();
    EXPECT_EQ(tabla.Entero(filas[0], 0, 1, 12), 12);
    EXPECT_EQ(LineaDe([&] { (void)tabla.Entero(filas[1], 0, 1, 99); }), 3);
    EXPECT_EQ(LineaDe([&] { (void)tabla.Entero(filas[2], 0, 1, 98); }), 4);
    EXPECT_EQ(tabla.Millonesimas(filas[0], 1), 24'000'000);
    EXPECT_EQ(LineaDe([&] { (void)tabla.Millonesimas(filas[1], 1); }), 3);
    EXPECT_EQ(LineaDe([&] { (void)tabla.Millonesimas(filas[2], 1); }), 4);
}
