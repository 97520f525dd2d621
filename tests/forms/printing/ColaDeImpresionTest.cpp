#include "forms/printing/plataforma/ColaDeImpresion.h"

#include <gtest/gtest.h>

#include <QLibrary>
#include <future>

#include "core/run/Entorno.h"
#include "core/run/Textos.h"

using namespace Qt::StringLiterals;

namespace {

/// What is told of a job for a scheduler that is not there. The library remembers its last answer by thread.
QString FalloSinServicio() {
    return std::async(std::launch::async,
                      [] {
                          QLibrary cups(u"cups"_s, 2);
                          const auto servidor =
                              reinterpret_cast<void (*)(const char*)>(cups.resolve("cupsSetServer"));
                          using Imprimir = int (*)(const char*, const char*, const char*, int, void*);
                          const auto imprimir = reinterpret_cast<Imprimir>(cups.resolve("cupsPrintFile"));
                          if (servidor == nullptr || imprimir == nullptr) {
                              return u"libcups"_s;
                          }
                          servidor("/no/hay/cups.sock");
                          EXPECT_EQ(imprimir("papel", "/dev/null", "569", 0, nullptr), 0);
                          return FalloDelUltimoTrabajo();
                      })
        .get();
}

}  // namespace

TEST(ColaDeImpresionTest, AServiceThatDoesNotAnswerIsToldInTheLanguageInForce) {
    ReiniciarEntorno();
    const QString castellano = FalloSinServicio();
    EXPECT_EQ(castellano, u"El servicio de impresión no responde."_s);
    Entorno().OffsetIdioma = kOffsetEuskera;
    EXPECT_EQ(FalloSinServicio(), u"Inprimatze-zerbitzuak ez du erantzuten."_s);
    ReiniciarEntorno();
}

TEST(ColaDeImpresionTest, AThreadThatHasHandedNothingOverHasNothingToTell) {
    EXPECT_EQ(std::async(std::launch::async, FalloDelUltimoTrabajo).get(), QString());
}
