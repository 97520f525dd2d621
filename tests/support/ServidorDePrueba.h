#pragma once

#include <QFile>
#include <QNetworkProxyFactory>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpServer>
#include <QTcpSocket>
#include <functional>
#include <memory>

#include "tests/support/VariableDeEntorno.h"

/// An answer of the service, with its length and without keeping the connection.
inline QByteArray Http(const QByteArray& estado, const QByteArray& cuerpo, const QByteArray& cabeceras = {}) {
    return "HTTP/1.1 " + estado + "\r\nContent-Type: text/plain\r\nConnection: close\r\nContent-Length: " +
           QByteArray::number(cuerpo.size()) + "\r\n" + cabeceras + "\r\n" + cuerpo;
}

/// The certificate and key of the server under TLS: signed by itself, for the address 127.0.0.1.
inline QSslConfiguration TlsDePrueba() {
    const auto leer = [](const QString& nombre) {
        QFile fichero(QStringLiteral(ZELT_DATOS_ONLINE "/") + nombre);
        return fichero.open(QIODevice::ReadOnly) ? fichero.readAll() : QByteArray();
    };
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setLocalCertificate(QSslCertificate(leer(QStringLiteral("servidor.pem"))));
    tls.setPrivateKey(QSslKey(leer(QStringLiteral("servidor.key")), QSsl::Ec));
    return tls;
}

/// A web server of the test's own on this machine. It answers each request as the test says. While it lives
/// the settings of whoever runs the tests name no proxy.
class ServidorDePrueba : public QObject {
  public:
    using Respuesta = std::function<void(QTcpSocket&)>;
    enum class Clase { Http, Https };

    explicit ServidorDePrueba(Clase clase = Clase::Http)
        : m_esquema(clase == Clase::Http ? "http" : "https") {
        QNetworkProxyFactory::setUseSystemConfiguration(false);
        if (clase == Clase::Http) {
            m_servidor = std::make_unique<QTcpServer>();
        } else {
            auto servidor = std::make_unique<QSslServer>();
            servidor->setSslConfiguration(TlsDePrueba());
            m_servidor = std::move(servidor);
        }
        connect(m_servidor.get(), &QTcpServer::pendingConnectionAvailable, this, [this] { Atender(); });
        if (!m_servidor->listen(QHostAddress::LocalHost)) {
            qFatal("no server on this machine");
        }
    }

    /// Answers every request with these bytes and closes.
    void Responder(const QByteArray& bytes) {
        respuesta = [bytes](QTcpSocket& conexion) {
            conexion.write(bytes);
            conexion.disconnectFromHost();
        };
    }

    [[nodiscard]] QString Direccion(const QString& ruta = QStringLiteral("/version")) const {
        return QStringLiteral("%1://127.0.0.1:%2%3")
            .arg(QLatin1StringView(m_esquema))
            .arg(m_servidor->serverPort())
            .arg(ruta);
    }

    /// What the server does with a request; silent until a test says more.
    Respuesta respuesta = [](QTcpSocket&) {};
    /// The requests so far, heads only.
    QList<QByteArray> peticiones;

  private:
    void Atender() {
        QTcpSocket* conexion = m_servidor->nextPendingConnection();
        conexion->setParent(this);
        auto peticion = std::make_shared<QByteArray>();
        const auto leer = [this, conexion, peticion] {
            *peticion += conexion->readAll();
            if (peticion->endsWith("\r\n\r\n")) {
                peticiones += *peticion;
                peticion->clear();
                respuesta(*conexion);
            }
        };
        connect(conexion, &QTcpSocket::readyRead, this, leer);
        leer();
    }

    VariableDeEntorno m_sinProxy{"no_proxy", "*"};
    const char* m_esquema;
    std::unique_ptr<QTcpServer> m_servidor;
};
