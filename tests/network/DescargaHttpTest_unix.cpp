// What a download leaves behind, and names that nobody answers for.

#include <dlfcn.h>
#include <netdb.h>

#include <QDir>
#include <QElapsedTimer>
#include <QSemaphore>
#include <QTest>
#include <atomic>
#include <cstring>

#include "network/DescargaHttp.h"
#include "tests/support/FormularioDePrueba.h"
#include "tests/support/ServicioHostil.h"
#include "tests/support/VariableDeEntorno.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr const char* kNombreMudo = "mudo.invalid";

std::atomic<int> preguntas = 0;
QSemaphore respuestas;

/// Threads of this process; 0 where the system does not tell.
qsizetype Hilos() { return QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(); }

bool VuelvenASer(qsizetype hilos) {
    return QTest::qWaitFor([hilos] { return Hilos() <= hilos; });
}

class DescargaHttpUnixTest : public testing::Test {
  private:
    VariableDeEntorno m_sinProxy{"no_proxy", "*"};
};

}  // namespace

/// Stands before the system's look-up of names: for one name it gives no answer until a test lets it.
extern "C" int getaddrinfo(const char* nombre, const char* servicio, const addrinfo* deseado,
                           addrinfo** encontrado) {
    if (nombre != nullptr && std::strcmp(nombre, kNombreMudo) == 0) {
        ++preguntas;
        respuestas.acquire();
        return EAI_AGAIN;
    }
    static const auto delSistema = reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
    return delSistema(nombre, servicio, deseado, encontrado);
}

TEST_F(DescargaHttpUnixTest, ANameThatNobodyAnswersForCostsTheTimeLimitAndNoMore) {
    const qsizetype hilos = Hilos();
    const int antes = preguntas;
    QElapsedTimer reloj;
    reloj.start();
    EXPECT_EQ(DescargarPorHttp(u"http://%1/version"_s.arg(QLatin1StringView(kNombreMudo)), {.plazo = 300ms}),
              std::nullopt);
    EXPECT_GE(reloj.elapsed(), 300);
    EXPECT_LT(reloj.elapsed(), 1300);
    EXPECT_EQ(preguntas, antes + 1);
    respuestas.release();
    EXPECT_TRUE(VuelvenASer(hilos));
}

TEST_F(DescargaHttpUnixTest, NoThreadWorksOnAfterADownloadThatWasCut) {
    const qsizetype hilos = Hilos();
    {
        const ServicioHostil servicio("HTTP/1.1 200 OK\r\nX: ", "x", 1ms);
        EXPECT_EQ(DescargarPorHttp(servicio.Direccion(), {.plazo = 300ms}), std::nullopt);
    }
    EXPECT_TRUE(VuelvenASer(hilos));
}
