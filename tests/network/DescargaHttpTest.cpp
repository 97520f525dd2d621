#include "network/DescargaHttp.h"

#include <QElapsedTimer>
#include <QTimer>

#include "tests/support/FicherosDePrueba.h"
#include "tests/support/FormularioDePrueba.h"
#include "tests/support/ServicioHostil.h"
#include "tests/support/ServidorDePrueba.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// What a busy machine may take on top of a limit.
constexpr qint64 kHolguraMs = 1000;
/// What it may take for an answer that comes at once.
constexpr qint64 kAlMomentoMs = 5000;

class DescargaHttpTest : public testing::Test {
  protected:
    /// Downloads and says how long that took.
    std::optional<QByteArray> Descargar(const QString& direccion, std::chrono::milliseconds plazo = 20s) {
        limites.plazo = plazo;
        QElapsedTimer reloj;
        reloj.start();
        auto contenido = DescargarPorHttp(direccion, limites);
        tardado = reloj.elapsed();
        return contenido;
    }

    void Confiar() { limites.raices = TlsDePrueba().localCertificate().toPem(); }

    ServidorDePrueba servidor;
    LimitesDeDescarga limites;
    qint64 tardado = 0;
};

}  // namespace

TEST_F(DescargaHttpTest, TheLimitsAreTenSecondsInAllAnd64KiB) {
    EXPECT_EQ(limites.plazo, 10s);
    EXPECT_EQ(limites.tamano, 65'536);
    EXPECT_EQ(limites.recibido, 131'072);
}

TEST_F(DescargaHttpTest, TheRequestIsAPlainGetOfTheAddress) {
    servidor.Responder(Http("200 OK", "hola\r\n"));
    EXPECT_EQ(Descargar(servidor.Direccion(u"/v?Programa=ZELTPROG&idioma=c"_s)), "hola\r\n"_ba);
    ASSERT_EQ(servidor.peticiones.size(), 1);
    const QByteArray peticion = servidor.peticiones.first();
    EXPECT_TRUE(peticion.startsWith("GET /v?Programa=ZELTPROG&idioma=c HTTP/1.1\r\n"));
    EXPECT_FALSE(peticion.toLower().contains("cookie:"));
}

TEST_F(DescargaHttpTest, EveryByteOfTheAnswerComesAsItIs) {
    QByteArray todos;
    for (int byte = 0; byte < 256; ++byte) {
        todos += static_cast<char>(byte);
    }
    const QByteArray cuerpo = "hola\r\n\0adi\xF3s"_ba + todos;
    ASSERT_EQ(cuerpo.size(), 12 + 256);
    servidor.Responder(Http("200 OK", cuerpo));
    EXPECT_EQ(Descargar(servidor.Direccion()), cuerpo);
}

TEST_F(DescargaHttpTest, AnAnswerInChunksIsPutTogether) {
    servidor.Responder(
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n3;x=y\r\nabc\r\n3\r\ndef\r\n0\r\nX: x\r\n\r\n");
    EXPECT_EQ(Descargar(servidor.Direccion()), "abcdef"_ba);
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
        EXPECT_LT(tardado, kAlMomentoMs) << estado;
    }
}

TEST_F(DescargaHttpTest, ARefusedConnectionIsAFailureAtOnce) {
    QString direccion;
    {
        const ServidorDePrueba cerrado;
        direccion = cerrado.Direccion();
    }
    EXPECT_EQ(Descargar(direccion), std::nullopt);
    EXPECT_LT(tardado, kAlMomentoMs);
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

/// An answer without end: how it begins and what it goes on with.
struct SinFin {
    const char* nombre;
    QByteArray principio;
    QByteArray parte;
};

class SinFinTest : public DescargaHttpTest, public testing::WithParamInterface<SinFin> {
  protected:
    /// The part, so many times that a write of them is a big one.
    [[nodiscard]] static QByteArray Mucho() { return GetParam().parte.repeated(4096); }
};

INSTANTIATE_TEST_SUITE_P(
    DescargaHttp, SinFinTest,
    testing::Values(
        SinFin{"StatusLine", "HTTP/1.1 200 ", "x"}, SinFin{"Interim", "", "HTTP/1.1 100 Continue\r\n\r\n"},
        SinFin{"Header", "HTTP/1.1 200 OK\r\nX: ", "x"}, SinFin{"Headers", "HTTP/1.1 200 OK\r\n", "X: x\r\n"},
        SinFin{"Body", "HTTP/1.1 200 OK\r\n\r\n", "x"},
        SinFin{"BodyOfKnownLength", "HTTP/1.1 200 OK\r\nContent-Length: 99999999999\r\n\r\n", "x"},
        SinFin{"Chunks", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n", "1\r\nx\r\n"},
        SinFin{"ChunkExtension", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n1;", "x"},
        SinFin{"Trailers", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n", "X: x\r\n"}),
    [](const auto& caso) { return std::string(caso.param.nombre); });

TEST_P(SinFinTest, IsCutAtItsSizeAndNotAtTheTimeLimit) {
    const ServicioHostil servicio(GetParam().principio, Mucho(), 0ms);
    EXPECT_EQ(Descargar(servicio.Direccion()), std::nullopt);
    EXPECT_LT(tardado, kAlMomentoMs);
}

TEST_P(SinFinTest, IsCutAtTheTimeLimitWhenItDrips) {
    const ServicioHostil servicio(GetParam().principio, GetParam().parte, 10ms);
    EXPECT_EQ(Descargar(servicio.Direccion(), 300ms), std::nullopt);
    EXPECT_GE(tardado, 300);
    EXPECT_LT(tardado, 300 + kHolguraMs);
}

TEST_P(SinFinTest, IsCutAtTheTimeLimitHoweverMuchComes) {
    limites.tamano = limites.recibido = std::numeric_limits<qint64>::max();
    const ServicioHostil servicio(GetParam().principio, Mucho(), 0ms);
    EXPECT_EQ(Descargar(servicio.Direccion(), 300ms), std::nullopt);
    EXPECT_LT(tardado, 300 + kHolguraMs);
}

TEST_F(DescargaHttpTest, WhatComesInAllIsLimitedToo) {
    const QByteArray cabecera = "X: " + QByteArray(1000, 'x') + "\r\n";
    limites.recibido = 4000;
    servidor.Responder(Http("200 OK", "hola", cabecera.repeated(3)));
    EXPECT_EQ(Descargar(servidor.Direccion()), "hola"_ba);
    servidor.Responder(Http("200 OK", "hola", cabecera.repeated(4)));
    EXPECT_EQ(Descargar(servidor.Direccion()), std::nullopt);
    // What the addresses on the way say counts with the rest.
    int veces = 0;
    servidor.respuesta = [&](QTcpSocket& conexion) {
        conexion.write(++veces < 3 ? Http("302 Found", "", "Location: /otra\r\n" + cabecera.repeated(2))
                                   : Http("200 OK", "hola"));
        conexion.disconnectFromHost();
    };
    EXPECT_EQ(Descargar(servidor.Direccion()), std::nullopt);
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

TEST_F(DescargaHttpTest, AnAnswerPackedForTheWayIsHeldToItsSizeUnpacked) {
    // What qCompress puts in front is not of the format.
    const QByteArray paquete = qCompress(QByteArray(10'000'000, 'x')).mid(4);
    ASSERT_LT(paquete.size(), limites.tamano);
    servidor.Responder("HTTP/1.1 200 OK\r\nTransfer-Encoding: deflate\r\nConnection: close\r\n\r\n" +
                       paquete);
    EXPECT_EQ(Descargar(servidor.Direccion()), std::nullopt);
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
        EXPECT_LT(tardado, kAlMomentoMs);
    }
}

// Proxies.

TEST_F(DescargaHttpTest, TheProxyThatTheEnvironmentNamesIsUsed) {
    const VariableDeEntorno conProxy("no_proxy", {});
    const VariableDeEntorno conElla("NO_PROXY", {});
    const VariableDeEntorno proxy("http_proxy", servidor.Direccion(u""_s).toLatin1());
    servidor.Responder(Http("200 OK", "hola"));
    EXPECT_EQ(Descargar(u"http://servicio.invalid/v"_s), "hola"_ba);
    EXPECT_TRUE(servidor.peticiones.first().startsWith("GET http://servicio.invalid/v HTTP/1.1\r\n"));
}

TEST_F(DescargaHttpTest, AScriptThatWouldChooseTheProxyIsNotAskedFor) {
    ServidorDePrueba guiones;
    const VariableDeEntorno conProxy("no_proxy", {});
    const VariableDeEntorno conElla("NO_PROXY", {});
    const VariableDeEntorno proxy("http_proxy", "pac+" + guiones.Direccion(u"/proxy.pac"_s).toLatin1());
    servidor.Responder(Http("200 OK", "hola"));
    EXPECT_EQ(Descargar(servidor.Direccion()), std::nullopt);
    EXPECT_LT(tardado, kAlMomentoMs);
    EXPECT_TRUE(guiones.peticiones.isEmpty());
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
    EXPECT_LT(tardado, kAlMomentoMs);
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
    // Nor when it began with HTTP.
    servidor.Responder(Http("301 Moved", "", "Location: " + seguro.Direccion().toLatin1() + "\r\n"));
    EXPECT_EQ(Descargar(servidor.Direccion()), std::nullopt);
    EXPECT_EQ(servidor.peticiones.size(), 1);
}

TEST_F(DescargaHttpTest, AServerThatNeverShakesHandsCostsTheTimeLimitAndNoMore) {
    QTcpServer mudo;
    ASSERT_TRUE(mudo.listen(QHostAddress::LocalHost));
    EXPECT_EQ(Descargar(u"https://127.0.0.1:%1/v"_s.arg(mudo.serverPort()), 300ms), std::nullopt);
    EXPECT_GE(tardado, 300);
    EXPECT_LT(tardado, 300 + kHolguraMs);
}
