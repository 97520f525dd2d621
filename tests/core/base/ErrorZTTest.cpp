#include "core/base/ErrorZT.h"

#include <stdexcept>

#include "core/base/Procedimiento.h"
#include "tests/support/Imprimibles.h"

using namespace Qt::StringLiterals;

TEST(ErrorZTTest, CarriesNumberSourceAndPlatformText) {
    const ErrorZT error(NumError::NoCoincidenTipos);
    EXPECT_EQ(error.Numero(), 13);
    EXPECT_EQ(error.Origen(), u"ZELT"_s);
    EXPECT_EQ(error.Descripcion(), u"No coinciden los tipos"_s);
}

TEST(ErrorZTTest, EveryProcedurePutsItsNameInFrontAsTheErrorClimbs) {
    const auto fuera = [] {
        Procedimiento(u"General.Fuera", [] {
            Procedimiento(u"General.Dentro",
                          [] { throw ErrorZT(NumError::DiscoLleno, u"lleno"_s, u"unidad"_s); });
        });
    };
    EXPECT_EQ(DescripcionDelError(fuera), u"General.Fuera\r\nGeneral.Dentro\r\nlleno"_s);
    EXPECT_EQ(NumeroDelError(fuera), 61);
}

TEST(ErrorZTTest, NumberAndSourceStayWhileTheDescriptionGrows) {
    try {
        Procedimiento(u"A", [] { throw ErrorZT(NumError::Subindice, u"x"_s, u"servidor"_s); });
        FAIL();
    } catch (const ErrorZT& error) {
        EXPECT_EQ(error.Origen(), u"servidor"_s);
        EXPECT_STREQ(error.what(), "A\r\nx");
    }
}

TEST(ErrorZTTest, ProcedureGivesBackTheResultOfItsBody) {
    EXPECT_EQ(Procedimiento(u"A", [] { return 7; }), 7);
}

TEST(ErrorZTTest, PlatformMessageNamesTheNumber) {
    EXPECT_EQ(MensajeDePlataforma(ErrorZT(NumError::Subindice, u"texto"_s)),
              u"Error '9' en tiempo de ejecución:\r\n\r\ntexto"_s);
}

TEST(ErrorZTTest, AFailureOfALibraryBecomesAnInternalErrorWithItsReason) {
    const ErrorZT error = ErrorInterno(std::runtime_error("índice ajeno"));
    EXPECT_EQ(error.Numero(), 51);
    EXPECT_EQ(error.Descripcion(), u"Error interno: índice ajeno"_s);
}
