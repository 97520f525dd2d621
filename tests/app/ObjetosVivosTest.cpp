// Nothing that a round of work makes outlives it. Memory by the byte is measured by bench/BancoMemoria.cpp.

#include "tests/support/ObjetosVivos.h"

#include "core/printing/ImprimirZT.h"
#include "forms/messages/PantallaQt.h"
#include "forms/printing/DispositivoQt.h"
#include "tests/support/PruebaDeAnexos.h"
#include "tests/support/RondaDeTrabajo.h"
#include "tests/support/VariableDeEntorno.h"

using namespace Qt::StringLiterals;

namespace {

class ObjetosVivosTest : public PruebaDeAnexos {
  protected:
    void SetUp() override {
        PruebaDeAnexos::SetUp();
        FijarPantalla(&m_real);
        FijarImpresora(&m_dispositivo);
    }
    void TearDown() override {
        FijarImpresora(nullptr);
        FijarPantalla(&pantalla);
        PruebaDeAnexos::TearDown();
    }

  private:
    // Nobody's documents and nobody's printer.
    VariableDeEntorno m_casa{"HOME", QFile::encodeName(carpeta.path())};
    VariableDeEntorno m_ajustes{"XDG_CONFIG_HOME", QFile::encodeName(carpeta.path())};
    VariableDeEntorno m_cola{"CUPS_SERVER", QFile::encodeName(carpeta.filePath(u"sin_cola"_s))};
    PantallaQt m_real;
    DispositivoQt m_dispositivo;
};

}  // namespace

TEST_F(ObjetosVivosTest, ARoundOfWorkLeavesNoObjectBehind) {
    HacerDeclaracion(2007);
    HacerLineas({{cses[0], 1}, {cses[1], 2}});
    Abrir(Forma::ListaDeclaraciones);
    ObjetosVivos objetos;
    RondaDeTrabajo ronda;
    std::map<std::string, int> alPrincipio;
    for (int n = 1; n <= 10; ++n) {
        ronda.Hacer(n);
        if (n == 3) {
            alPrincipio = objetos.PorClase();
        }
    }
    EXPECT_EQ(objetos.PorClase(), alPrincipio);
    EXPECT_EQ(ronda.Impresos(), 10);
    EXPECT_EQ(Almacenadas().front(), Linea(cses[0], 1, 1000));
}
