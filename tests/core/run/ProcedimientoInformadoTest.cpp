#include "core/run/ProcedimientoInformado.h"

#include <stdexcept>

#include "tests/support/EntornoDePrueba.h"

using namespace Qt::StringLiterals;

namespace {

class ProcedimientoInformadoTest : public EntornoDePrueba {
  protected:
    /// Runs a procedure that raises `fallo`, and gives its result back.
    template <class Fallo>
    static int Fallar(const Fallo& fallo) {
        return ProcedimientoInformado(u"cClase"_s, u"cClase.Metodo"_s, [&]() -> int { throw fallo; });
    }
};

}  // namespace

TEST_F(ProcedimientoInformadoTest, AProcedureThatEndsWellGivesItsResultBack) {
    EXPECT_EQ(ProcedimientoInformado(u"cClase"_s, u"cClase.Metodo"_s, [] { return 7; }), 7);
    EXPECT_TRUE(pantalla.errores.empty());
}

TEST_F(ProcedimientoInformadoTest, AFailureIsShownUnderTheNameAndTheResultIsZero) {
    EXPECT_EQ(Fallar(ErrorZT(NumError::DiscoLleno)), 0);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().formulario, u"cClase"_s);
    EXPECT_EQ(pantalla.errores.front().evento, u"cClase.Metodo"_s);
    EXPECT_EQ(pantalla.errores.front().descripcion, u"cClase.Metodo\r\nDisco lleno"_s);
}

TEST_F(ProcedimientoInformadoTest, AFailureOfALibraryIsShownAsAnInternalError) {
    EXPECT_EQ(Fallar(std::runtime_error("sin memoria")), 0);
    ASSERT_EQ(pantalla.errores.size(), 1U);
    EXPECT_EQ(pantalla.errores.front().evento, u"cClase.Metodo"_s);
    EXPECT_EQ(pantalla.errores.front().descripcion, u"cClase.Metodo\r\nError interno: sin memoria"_s);
}
