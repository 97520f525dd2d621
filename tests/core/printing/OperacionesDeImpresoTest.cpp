#include "core/printing/OperacionesDeImpreso.h"

#include <QSet>

#include "tests/support/ImpresoraGrabadora.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

namespace {

/// "Arial" 10: "ABCDE" is 1 wide and 3.75 high.
class OperacionesDeImpresoTest : public testing::Test {
  protected:
    void SetUp() override {
        FijarImpresora(&impresora);
        impresora.UsarMilimetros();
        impresora.letra = {u"Arial"_s, 10, false};
    }
    void TearDown() override { FijarImpresora(nullptr); }

    [[nodiscard]] QString Marca() const {
        const QStringList& pagina = impresora.documentos.at(0).paginas.at(0);
        EXPECT_EQ(pagina.size(), 1);
        return pagina.value(0);
    }

    ImpresoraGrabadora impresora;
};

}  // namespace

TEST_F(OperacionesDeImpresoTest, TheMeasuresOfTheRecorderAreThese) {
    ASSERT_DOUBLE_EQ(impresora.AnchoDeTexto(u"ABCDE"_s), 1.0);
    ASSERT_DOUBLE_EQ(impresora.AltoDeTexto(u"ABCDE"_s), 3.75);
}

TEST_F(OperacionesDeImpresoTest, TPutsTheTopLeftOfTheTextAtThePoint) {
    impreso::TextoDesdeEsquina(32, 16, u"ABCDE"_s);
    EXPECT_EQ(Marca(), u"texto \"ABCDE\" (32.0000,16.0000) Arial 10 normal"_s);
}

TEST_F(OperacionesDeImpresoTest, CCentresTheTextInItsWidth) {
    impreso::TextoCentrado(12, 243, 180, u"ABCDE"_s);
    EXPECT_EQ(Marca(), u"texto \"ABCDE\" (101.5000,243.0000) Arial 10 normal"_s);
}

TEST_F(OperacionesDeImpresoTest, LPutsThePointAtATextHeightOf35PerCent) {
    impreso::TextoIzquierda(21, 46, u"ABCDE"_s);
    EXPECT_EQ(Marca(), u"texto \"ABCDE\" (21.0000,44.6875) Arial 10 normal"_s);
}

TEST_F(OperacionesDeImpresoTest, REndsTheTextAtThePointAtATextHeightOf35PerCent) {
    impreso::TextoDerecha(79, 97, u"ABCDE"_s);
    EXPECT_EQ(Marca(), u"texto \"ABCDE\" (78.0000,95.6875) Arial 10 normal"_s);
}

TEST_F(OperacionesDeImpresoTest, EachLetterIsItsOperation) {
    using impreso::Op;
    impreso::TextoDesdeEsquina(1, 2, u"AB"_s);
    impreso::TextoCentrado(1, 2, 30, u"AB"_s);
    impreso::TextoIzquierda(1, 2, u"AB"_s);
    impreso::TextoDerecha(1, 2, u"AB"_s);
    for (const Op op : {Op::T, Op::C, Op::L, Op::R}) {
        impreso::Escribir(op, 1, 2, 30, u"AB"_s);
    }
    const QStringList& pagina = impresora.documentos.at(0).paginas.at(0);
    EXPECT_EQ(pagina.mid(0, 4), pagina.mid(4));
    EXPECT_EQ(QSet<QString>(pagina.begin(), pagina.end()).size(), 4);
}

TEST_F(OperacionesDeImpresoTest, ALineRunsBetweenItsPoints) {
    impreso::Linea(1, 2, 3, 4);
    EXPECT_EQ(Marca(), u"raya (1.0000,2.0000)-(3.0000,4.0000)"_s);
}

TEST_F(OperacionesDeImpresoTest, AFrameIsAnOutlineWithWhiteSetAsTheFillColour) {
    impreso::Recuadro(10, 14, 192, 42);
    EXPECT_EQ(Marca(), u"marco (10.0000,14.0000)-(192.0000,42.0000) blanco"_s);
}

TEST_F(OperacionesDeImpresoTest, NothingIsDrawnWithoutADevice) {
    FijarImpresora(nullptr);
    EXPECT_EQ(NumeroDelError([] { impreso::Linea(1, 2, 3, 4); }), 482);
}
