#include "online/DescargaHttp.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <memory>

#include "online/DireccionWeb.h"

namespace {

QNetworkRequest Peticion(const QUrl& url, const LimitesDeDescarga& limites) {
    QNetworkRequest peticion(url);
    peticion.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                          QNetworkRequest::NoLessSafeRedirectPolicy);
    peticion.setMaximumRedirectsAllowed(limites.redirecciones);
    // Unpacking could make a small answer a huge one.
    peticion.setRawHeader("Accept-Encoding", "identity");
    return peticion;
}

}  // namespace

std::optional<QByteArray> DescargarPorHttp(const QString& direccion, const LimitesDeDescarga& limites) {
    const QUrl url(direccion);
    if (!EsDireccionWeb(url)) {
        return std::nullopt;
    }
    QEventLoop bucle;
    QTimer::singleShot(limites.plazo, Qt::PreciseTimer, &bucle, &QEventLoop::quit);
    QNetworkAccessManager red;
    const std::unique_ptr<QNetworkReply> respuesta(red.get(Peticion(url, limites)));
    respuesta->setReadBufferSize(limites.tamano + 1);
    QByteArray contenido;
    const auto recoger = [&] {
        contenido += respuesta->readAll();
        if (contenido.size() > limites.tamano) {
            bucle.quit();
        }
    };
    QObject::connect(respuesta.get(), &QNetworkReply::readyRead, &bucle, recoger);
    QObject::connect(respuesta.get(), &QNetworkReply::finished, &bucle, &QEventLoop::quit);
    if (!respuesta->isFinished()) {
        bucle.exec(QEventLoop::ExcludeUserInputEvents);
    }
    recoger();
    if (!respuesta->isFinished() || respuesta->error() != QNetworkReply::NoError ||
        contenido.size() > limites.tamano) {
        return std::nullopt;
    }
    return contenido;
}
