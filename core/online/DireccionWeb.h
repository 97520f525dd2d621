#pragma once

#include <QUrl>

/// Whether an address is one of the web: HTTPS or HTTP, with a host.
inline bool EsDireccionWeb(const QUrl& url) {
    const QString esquema = url.scheme();
    return url.isValid() && (esquema == u"https" || esquema == u"http") && !url.host().isEmpty();
}
