#include "online/DescargaHttp.h"

#include <QElapsedTimer>
#include <QNetworkProxy>
#include <QTimer>

#include "tests/online/ServidorDePrueba.h"
#include "tests/support/FicherosDePrueba.h"
#include "tests/support/FormularioDePrueba.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What a busy machine may take on top of a limit.
constexpr qint64 kHolguraMs = 5000;

class DescargaHttpTest : public testing::Test {
  protected:
    void SetUp() override {
        // The settings of whoever runs the tests name no proxy for this machine.
        QNetworkProxyFactory::setUseSystemConfiguration(false);
        m_tls = QSslConfiguration::defaultConfiguration();
    }
    void TearDown() override { QSslConfiguration::setDefaultConfiguration(m_tls); }

    /// Downloads and says how long that took.
    std::optional<QByteArray> Descargar(const QString& direccion, std::chrono::milliseconds plazo = 20s) {
        QElapsedTimer reloj;
        reloj.start();
        auto contenido = DescargarPorHttp(direccion, {.plazo = plazo});
        tardado = reloj.elapsed();
        return contenido;
    }

    static void Confiar() {
        QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
        tls.addCaCertificate(TlsDePrueba().localCertificate());
        QSslConfiguration::setDefaultConfiguration(tls);
    }

    ServidorDePrueba servidor;
    qint64 tardado = 0;

  private:
    QSslConfiguration m_tls;
};

}  // namespace

TEST_F(DescargaHttpTest, TheLimitsAreTenSecondsInAllAnd64KiB) {
    const LimitesDeDescarga limites;
    EXPECT_EQ(limites.plazo, 10s);
    EXPECT_EQ(limites.tamano, 65'536);
}

TEST_F(DescargaHttpTest, TheRequestIsAPlainGetOfTheAddress) {
    servidor.Responder(Http("200 OK", "hola\r\n\0adi\xF3s"));
    EXPECT_EQ(Descargar(servidor.Direccion(u"/v?Programa=ZELTPROG&idioma=c"_s)), QByteArray("hola\r\n"));
    ASSERT_EQ(servidor.peticiones.size(), 1);
    const QByteArray peticion = servidor.peticiones.first();
    EXPECT_TRUE(peticion.startsWith("GET /v?Programa=ZELTPROG&idioma=c HTTP/1.1\r\n"));
    EXPECT_FALSE(peticion.toLower().contains("cookie:"));
}

TEST_F(DescargaHttpTest, AnAnswerInSeveralPiecesIsPutTogether) {
    servidor.respuesta = [](QTcpSocket& conexion) {
        conexion.write("HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\nabc");
        QTimer::singleShot(20, &conexion, [&conexion] { conexion.write("def"); });
    };
    EXPECT_EQ(Descargar(servidor.Direccion()), QByteArray("abcdef"));
}

TEST_F(DescargaHttpTest, AnEmptyAnswerIsAnAnswer) {
    servidor.Responder(Http("200 OK", ""));
    EXPECT_EQ(Descargar(servidor.Direccion()), QByteArray());
}

TEST_F(DescargaHttpTest, OnlyAddressesOfTheWebAreAskedFor) {
    QTemporaryDir carpeta;
    const QString fichero = carpeta.filePath(u"version.ini"_s);
    EscribirFichero(fichero, "secreto");
    for (const QString& direccion :
         {QUrl::fromLocalFile(fichero).toString(), fichero, u"?Programa=ZELTPROG&idioma=c"_s, QString(),
          u"data:text/plain,hola"_s, u"qrc:/textos/tabla.txt"_s, u"ftp://127.0.0.1/v"_s, u"http://"_s,
          u"http:/version"_s, u"//127.0.0.1/v"_s, u"http://[mal/"_s}) {
        EXPECT_EQ(Descargar(direccion), std::nullopt) << direccion.toStdString();
    }
}

TEST_F(DescargaHttpTest, AStatusOf400OrAboveIsAFailure) {
    for (const char* estado : {"400 Bad Request", "401 Unauthorized", "403 Forbidden", "404 Not Found",
                               "418 I'm a teapot", "500 Internal Server Error", "503 Unavailable"}) {
        servidor.Responder(Http(estado, "[informacion]\r\ncurrentversion=1.2.3\r\n",
                                "WWW-Authenticate: Basic realm=\"x\"\r\n"));
        EXPECT_EQ(Descargar(servidor.Direccion()), std::nullopt) << estado;
        EXPECT_LT(tardado, kHolguraMs) << estado;
    }
}

TEST_F(DescargaHttpTest, ARefusedConnectionIsAFailureAtOnce) {
    QString direccion;
    {
        const ServidorDePrueba cerrado;
        direccion = cerrado.Direccion();
    }
    EXPECT_EQ(Descargar(direccion), std::nullopt);
    EXPECT_LT(tardado, kHolguraMs);
}

TEST_F(DescargaHttpTest, AnAnswerThatBreaksOffIsAFailure) {
    servidor.Responder("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nsolo esto");
    EXPECT_EQ(Descargar(servidor.Direccion()), std::nullopt);
    servidor.Responder("esto no es HTTP\r\n\r\n");
    EXPECT_EQ(Descargar(servidor.Direccion()), std::nullopt);
    servidor.Responder("");
    EXPECT_EQ(Descargar(servidor.Direccion()), std::nullopt);
}

// No server holds the program for longer than the limit.

TEST_F(DescargaHttpTest, ASilentServerCostsTheTimeLimitAndNoMore) {
    EXPECT_EQ(Descargar(servidor.Direccion(), 300ms), std::nullopt);
    EXPECT_GE(tardado, 300);
    EXPECT_LT(tardado, 300 + kHolguraMs);
}

TEST_F(DescargaHttpTest, AServerThatDripsIsHeldToTheSameLimit) {
    const auto gotear = [](QTcpSocket& conexion, const QByteArray& principio) {
        conexion.write(principio);
        auto* gota = new QTimer(&conexion);
        QObject::connect(gota, &QTimer::timeout, &conexion, [&conexion] { conexion.write("x"); });
        gota->start(10);
    };
    for (const QByteArray& principio : {QByteArray("HTTP/1.1 200 OK\r\nContent-Length: 60000\r\n\r\n"),
                                        QByteArray("HTTP/1.1 200 OK\r\nX: ")}) {
        servidor.respuesta = [&](QTcpSocket& conexion) { gotear(conexion, principio); };
        EXPECT_EQ(Descargar(servidor.Direccion(), 300ms), std::nullopt);
        EXPECT_GE(tardado, 300);
        EXPECT_LT(tardado, 300 + kHolguraMs);
    }
}

TEST_F(DescargaHttpTest, AnEndlessAnswerIsCutAtItsSizeAndNotAtTheTimeLimit) {
    for (const QByteArray& longitud : {QByteArray(), QByteArray("Content-Length: 99999999999\r\n")}) {
        servidor.respuesta = [&longitud](QTcpSocket& conexion) {
            conexion.write("HTTP/1.1 200 OK\r\n" + longitud + "\r\n");
            const auto seguir = [&conexion] { conexion.write(QByteArray(16'384, 'x')); };
            QObject::connect(&conexion, &QTcpSocket::bytesWritten, &conexion, seguir);
            seguir();
        };
        EXPECT_EQ(Descargar(servidor.Direccion()), std::nullopt);
        EXPECT_LT(tardado, kHolguraMs);
    }
}

TEST_F(DescargaHttpTest, TheGreatestSizeIsStillAnAnswer) {
    const QByteArray justo(65'536, 'x');
    servidor.Responder(Http("200 OK", justo));
    EXPECT_EQ(Descargar(servidor.Direccion()), justo);
    servidor.Responder(Http("200 OK", justo + 'x'));
    EXPECT_EQ(Descargar(servidor.Direccion()), std::nullopt);
}

TEST_F(DescargaHttpTest, PackedAnswersAreNotAskedForAndNotUnpacked) {
    servidor.Responder(Http("200 OK", "\x1F\x8B basura", "Content-Encoding: gzip\r\n"));
    EXPECT_EQ(Descargar(servidor.Direccion()), QByteArray("\x1F\x8B basura"));
    EXPECT_TRUE(servidor.peticiones.first().toLower().contains("\r\naccept-encoding: identity\r\n"));
}

TEST_F(DescargaHttpTest, TheProgramLivesOnWhileItWaits) {
    bool corrio = false;
    QTimer::singleShot(10, qApp, [&corrio] { corrio = true; });
    Descargar(servidor.Direccion(), 300ms);
    EXPECT_TRUE(corrio);
}

// Redirections.

TEST_F(DescargaHttpTest, ARedirectionIsFollowedAFewTimes) {
    int veces = 0;
    int hasta = 4;
    servidor.respuesta = [&](QTcpSocket& conexion) {
        const QByteArray lugar = "Location: /" + QByteArray::number(++veces) + "\r\n";
        conexion.write(veces <= hasta ? Http("302 Found", "", lugar) : Http("200 OK", "al fin"));
        conexion.disconnectFromHost();
    };
    EXPECT_EQ(Descargar(servidor.Direccion()), QByteArray("al fin"));
    EXPECT_EQ(veces, 5);
    veces = 0;
    hasta = 1'000'000;
    EXPECT_EQ(Descargar(servidor.Direccion()), std::nullopt);
    EXPECT_LT(veces, 10);
}

TEST_F(DescargaHttpTest, ARedirectionOutOfTheWebIsAFailure) {
    QTemporaryDir carpeta;
    EscribirFichero(carpeta.filePath(u"secreto"_s), "secreto");
    for (const QByteArray& lugar :
         {QUrl::fromLocalFile(carpeta.filePath(u"secreto"_s)).toEncoded(), QByteArray("data:text/plain,hola"),
          QByteArray("qrc:/textos/tabla.txt"), QByteArray("ftp://127.0.0.1/v")}) {
        servidor.Responder(Http("302 Found", "", "Location: " + lugar + "\r\n"));
        EXPECT_EQ(Descargar(servidor.Direccion()), std::nullopt) << lugar.constData();
        EXPECT_LT(tardado, kHolguraMs);
    }
}

// TLS.

TEST_F(DescargaHttpTest, ACertificateThatHoldsIsAccepted) {
    ServidorDePrueba seguro(ServidorDePrueba::Clase::Https);
    seguro.Responder(Http("200 OK", "hola"));
    Confiar();
    EXPECT_EQ(Descargar(seguro.Direccion()), QByteArray("hola"));
}

TEST_F(DescargaHttpTest, ACertificateThatSignsItselfIsAFailureAndNothingIsAsked) {
    ServidorDePrueba seguro(ServidorDePrueba::Clase::Https);
    seguro.Responder(Http("200 OK", "hola"));
    EXPECT_EQ(Descargar(seguro.Direccion()), std::nullopt);
    EXPECT_TRUE(seguro.peticiones.isEmpty());
    EXPECT_LT(tardado, kHolguraMs);
}

TEST_F(DescargaHttpTest, ACertificateForAnotherNameIsAFailure) {
    ServidorDePrueba seguro(ServidorDePrueba::Clase::Https);
    seguro.Responder(Http("200 OK", "hola"));
    Confiar();
    EXPECT_EQ(Descargar(seguro.Direccion().replace(u"127.0.0.1"_s, u"localhost"_s)), std::nullopt);
    EXPECT_TRUE(seguro.peticiones.isEmpty());
}

TEST_F(DescargaHttpTest, FromHttpToHttpsIsFollowedAndNotTheOtherWay) {
    Confiar();
    ServidorDePrueba seguro(ServidorDePrueba::Clase::Https);
    seguro.Responder(Http("200 OK", "seguro"));
    servidor.Responder(Http("301 Moved", "", "Location: " + seguro.Direccion().toLatin1() + "\r\n"));
    EXPECT_EQ(Descargar(servidor.Direccion()), QByteArray("seguro"));
    seguro.Responder(Http("301 Moved", "", "Location: " + servidor.Direccion().toLatin1() + "\r\n"));
    servidor.Responder(Http("200 OK", "inseguro"));
    servidor.peticiones.clear();
    EXPECT_EQ(Descargar(seguro.Direccion()), std::nullopt);
    EXPECT_TRUE(servidor.peticiones.isEmpty());
}

TEST_F(DescargaHttpTest, AServerThatNeverShakesHandsCostsTheTimeLimitAndNoMore) {
    QTcpServer mudo;
    ASSERT_TRUE(mudo.listen(QHostAddress::LocalHost));
    EXPECT_EQ(Descargar(u"https://127.0.0.1:%1/v"_s.arg(mudo.serverPort()), 300ms), std::nullopt);
    EXPECT_GE(tardado, 300);
    EXPECT_LT(tardado, 300 + kHolguraMs);
}
