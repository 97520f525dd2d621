#pragma once

#include <QByteArray>
#include <QString>
#include <chrono>
#include <optional>

/// What a download may take.
struct LimitesDeDescarga {
    /// From the call to the last byte, whatever the server does in between.
    std::chrono::milliseconds plazo{10'000};
    /// Bytes of the answer.
    qint64 tamano = qint64{64} * 1024;
    /// Other addresses that the server may send to, one after the other.
    int redirecciones = 4;
};

/// The answer to a plain GET, whole; nothing when the address is not one of the web, the server cannot be
/// reached or answers with a status of 400 or above, its certificate does not hold, or a limit is reached.
/// Redirections are followed from HTTP to HTTP or HTTPS and from HTTPS to HTTPS only.
///
/// The program repaints while it waits and takes no input of the user.
std::optional<QByteArray> DescargarPorHttp(const QString& direccion, const LimitesDeDescarga& limites = {});
