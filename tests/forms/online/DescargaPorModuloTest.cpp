// The network's module as the program finds and loads it, against a server of the test's own.

#include "forms/online/DescargaPorModulo.h"

#include <QLibraryInfo>

#include "tests/support/FicherosDePrueba.h"
#include "tests/support/FormularioDePrueba.h"
#include "tests/support/ServidorDePrueba.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

class DescargaPorModuloTest : public PruebaDeFormularios {
  protected:
    void SetUp() override {
        PruebaDeFormularios::SetUp();
        servidor.Responder(Http("200 OK", "respuesta"));
    }

    ServidorDePrueba servidor;
};

}  // namespace

TEST_F(DescargaPorModuloTest, TheModuleIsFoundWhereItIsBuiltAndDownloads) {
    EXPECT_EQ(DescargarPorModulo(servidor.Direccion(), {.plazo = 20s}), QByteArray("respuesta"));
    EXPECT_EQ(DescargarPorModulo(servidor.Direccion(), {.plazo = 20s}), QByteArray("respuesta"));
    EXPECT_EQ(servidor.peticiones.size(), 2);
}

TEST_F(DescargaPorModuloTest, TheLimitsOfTheCallerHold) {
    EXPECT_EQ(DescargarPorModulo(servidor.Direccion(), {.plazo = 20s, .tamano = 8}), std::nullopt);
    EXPECT_EQ(DescargarPorModulo(servidor.Direccion(), {.plazo = 20s, .tamano = 9}), QByteArray("respuesta"));
}

TEST_F(DescargaPorModuloTest, WithoutAModuleOfThisProgramThereIsNoAnswerAndNothingIsAsked) {
    const QString ausente = carpeta.filePath(u"zt_red"_s);
    const QString ninguno = carpeta.filePath(u"zt_red.so"_s);
    EscribirFichero(ninguno, "esto no es un modulo");
    const QString ajeno = QLibraryInfo::path(QLibraryInfo::PluginsPath) + u"/platforms/qoffscreen"_s;
    for (const QString& modulo : {ausente, ninguno, ajeno}) {
        EXPECT_EQ(DescargarPorModulo(servidor.Direccion(), {.plazo = 20s}, modulo), std::nullopt)
            << modulo.toStdString();
    }
    EXPECT_TRUE(servidor.peticiones.isEmpty());
}
