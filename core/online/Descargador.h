#pragma once

#include <QByteArray>
#include <QString>
#include <QtPlugin>
#include <chrono>
#include <optional>

/// What a download may take, and whom it trusts.
struct LimitesDeDescarga {
    /// From the call to the last byte, whatever the server does in between.
    std::chrono::milliseconds plazo{10'000};
    /// Bytes of the answer.
    qint64 tamano = qint64{64} * 1024;
    /// Bytes that may come in all: the answer, its head and framing, what TLS says for itself, and all that
    /// of the addresses that only send on to others.
    qint64 recibido = qint64{128} * 1024;
    /// Other addresses that the server may send to, one after the other.
    int redirecciones = 4;
    /// Root certificates (PEM) to trust in the place of the system's; none: the system's.
    QByteArray raices = {};
};

/// What the network's module gives the program.
class Descargador {
  public:
    Descargador() = default;
    Descargador(const Descargador&) = delete;
    Descargador& operator=(const Descargador&) = delete;
    virtual ~Descargador() = default;

    /// The answer to a plain GET, whole; nothing when the address is not one of the web, the server cannot be
    /// reached or answers with a status of 400 or above, its certificate does not hold, or a limit is
    /// reached. Redirections are followed from HTTP to HTTP or HTTPS and from HTTPS to HTTPS only. The
    /// only proxies are those that the environment names with an address (http_proxy and its kin).
    ///
    /// The program repaints while it waits and takes no input of the user. Nothing of a download goes on
    /// after the call, but for a look-up of a name that nobody answers: it is left to end by itself, asleep,
    /// so the module has to stay loaded.
    virtual std::optional<QByteArray> DescargarDireccion(const QString& direccion,
                                                         const LimitesDeDescarga& limites) = 0;
};

Q_DECLARE_INTERFACE(Descargador, "zelt.Descargador/1")
