#pragma once

#include <QSemaphore>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <atomic>
#include <chrono>
#include <memory>

/// A service that never ends its answer. It works in a thread of its own, so that it writes whatever the
/// program does.
class ServicioHostil {
  public:
    /// Answers with `principio` and then with `parte` again and again, a pause between them; without a pause
    /// as fast as the program takes it.
    ServicioHostil(const QByteArray& principio, const QByteArray& parte, std::chrono::milliseconds pausa)
        : m_hilo(QThread::create([=, this] { Servir(principio, parte, pausa); })) {
        m_hilo->start();
        m_escucha.acquire();
    }
    ~ServicioHostil() {
        m_fin = true;
        m_hilo->wait();
    }
    ServicioHostil(const ServicioHostil&) = delete;
    ServicioHostil& operator=(const ServicioHostil&) = delete;

    [[nodiscard]] QString Direccion() const {
        return QStringLiteral("http://127.0.0.1:%1/version").arg(m_puerto);
    }

  private:
    static constexpr int kTurnoMs = 20;

    void Servir(const QByteArray& principio, const QByteArray& parte, std::chrono::milliseconds pausa) {
        QTcpServer servidor;
        if (!servidor.listen(QHostAddress::LocalHost)) {
            qFatal("no server on this machine");
        }
        m_puerto = servidor.serverPort();
        m_escucha.release();
        while (!m_fin && !servidor.hasPendingConnections()) {
            servidor.waitForNewConnection(kTurnoMs);
        }
        const std::unique_ptr<QTcpSocket> conexion(servidor.nextPendingConnection());
        if (conexion && conexion->waitForReadyRead()) {
            conexion->write(principio);
            while (!m_fin && conexion->state() == QAbstractSocket::ConnectedState) {
                Seguir(*conexion, parte, pausa);
            }
        }
    }

    static void Seguir(QTcpSocket& conexion, const QByteArray& parte, std::chrono::milliseconds pausa) {
        if (conexion.bytesToWrite() == 0) {
            conexion.write(parte);
        }
        conexion.waitForBytesWritten(kTurnoMs);
        if (pausa.count() > 0) {
            conexion.waitForDisconnected(static_cast<int>(pausa.count()));
        }
    }

    std::atomic<bool> m_fin = false;
    quint16 m_puerto = 0;
    QSemaphore m_escucha;
    std::unique_ptr<QThread> m_hilo;
};
