// Imports a file in the automatic mode and says after each line how many are done, until it is killed.
//   importar_sin_parar STORE FILE FOLDER_OF_FAULTS

#include <QCoreApplication>
#include <QStringList>
#include <cstdio>

#include "core/exchange/ImportacionZT.h"
#include "core/exchange/PantallasDeIntercambio.h"
#include "core/run/Entorno.h"

namespace {

class Contador : public PantallaDeImportacion {
  public:
    [[nodiscard]] bool Automatico() const override { return true; }
    void MostrarBarra() override {}
    void Avanzar(int hechos, int /*total*/) override {
        std::printf("%d\n", hechos);
        std::fflush(stdout);
    }
};

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication aplicacion(argc, argv);
    const QStringList argumentos = QCoreApplication::arguments();
    Entorno().mdbmod = argumentos.at(1);
    Entorno().CarpetaPrograma = argumentos.at(3);
    Contador contador;
    Import(argumentos.at(2), contador);
}
