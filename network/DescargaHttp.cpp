#include "network/DescargaHttp.h"

#include <curl/curl.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QScopeGuard>
#include <memory>

#include "core/online/DireccionWeb.h"

namespace {

/// How long the windows wait for their turn while the network is silent, in milliseconds.
constexpr int kTurnoMs = 20;

template <auto Cerrar>
struct Cierre {
    template <class T>
    void operator()(T* recurso) const {
        Cerrar(recurso);
    }
};
using Peticion = std::unique_ptr<CURL, Cierre<&curl_easy_cleanup>>;
using Conexiones = std::unique_ptr<CURLM, Cierre<&curl_multi_cleanup>>;
using Cabeceras = std::unique_ptr<curl_slist, Cierre<&curl_slist_free_all>>;

bool BibliotecaLista() {
    static const bool lista = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK;
    return lista;
}

/// Where the answer to a request sends to; nothing when it sends nowhere.
std::optional<QUrl> Redireccion(CURL* peticion) {
    const char* lugar = nullptr;
    if (curl_easy_getinfo(peticion, CURLINFO_REDIRECT_URL, &lugar) != CURLE_OK || lugar == nullptr) {
        return std::nullopt;
    }
    return QUrl::fromEncoded(lugar);
}

/// One download: its requests, one after the other, under common limits.
class Descarga {
  public:
    explicit Descarga(const LimitesDeDescarga& limites)
        : m_limites(limites), m_plazo(limites.plazo, Qt::PreciseTimer) {}

    std::optional<QByteArray> Traer(QUrl url) {
        for (int quedan = m_limites.redirecciones; EsDireccionWeb(url) && Pedir(url); --quedan) {
            if (!m_lugar) {
                return m_contenido;
            }
            if (quedan <= 0 || (url.scheme() == u"https" && m_lugar->scheme() != u"https")) {
                break;
            }
            url = *m_lugar;
        }
        return std::nullopt;
    }

  private:
    /// Asks for one address: fills in `m_contenido`, or `m_lugar` when the answer is to be had elsewhere.
    bool Pedir(const QUrl& url) {
        // Unpacking could make a small answer a huge one.
        const Cabeceras cabeceras(curl_slist_append(nullptr, "Accept-Encoding: identity"));
        const Peticion peticion(curl_easy_init());
        if (!m_conexiones || !cabeceras || !peticion || !Preparar(peticion.get(), url, cabeceras.get())) {
            return false;
        }
        m_contenido.clear();
        if (curl_multi_add_handle(m_conexiones.get(), peticion.get()) != CURLM_OK) {
            return false;
        }
        const auto dejar = qScopeGuard([&] { curl_multi_remove_handle(m_conexiones.get(), peticion.get()); });
        const bool respondida = Esperar();
        m_lugar = Redireccion(peticion.get());
        return respondida;
    }

    /// False when the library refuses any of it: nothing goes out then with less than all of these set.
    bool Preparar(CURL* peticion, const QUrl& url, curl_slist* cabeceras) {
        bool aceptado = true;
        const auto poner = [&](CURLoption opcion, auto valor) {
            aceptado = aceptado && curl_easy_setopt(peticion, opcion, valor) == CURLE_OK;
        };
        poner(CURLOPT_URL, url.toEncoded().constData());
        poner(CURLOPT_PROTOCOLS_STR, "http,https");
        poner(CURLOPT_HTTP_VERSION, long{CURL_HTTP_VERSION_1_1});
        poner(CURLOPT_HTTPHEADER, cabeceras);
        poner(CURLOPT_FAILONERROR, 1L);
        poner(CURLOPT_SSL_VERIFYPEER, 1L);
        poner(CURLOPT_SSL_VERIFYHOST, 2L);
        poner(CURLOPT_SSLVERSION, long{CURL_SSLVERSION_TLSv1_2});
        poner(CURLOPT_SSL_OPTIONS, long{CURLSSLOPT_NATIVE_CA});
        if (!m_limites.raices.isEmpty()) {
            curl_blob raices{const_cast<char*>(m_limites.raices.constData()),
                             static_cast<size_t>(m_limites.raices.size()), CURL_BLOB_COPY};
            poner(CURLOPT_CAINFO_BLOB, &raices);
        }
        poner(CURLOPT_NOSIGNAL, 1L);
        // A look-up of a name that hangs is not waited for either.
        poner(CURLOPT_QUICK_EXIT, 1L);
        // One more than is left: 0 would stand for no limit, and the clock of the download is the exact one.
        poner(CURLOPT_TIMEOUT_MS, static_cast<long>(m_plazo.remainingTime() + 1));
        poner(CURLOPT_WRITEFUNCTION, &Descarga::AlLlegarContenido);
        poner(CURLOPT_WRITEDATA, this);
        // Only the channel for traces sees every byte, those between the chunks of an answer included.
        poner(CURLOPT_VERBOSE, 1L);
        poner(CURLOPT_DEBUGFUNCTION, &Descarga::AlLlegarBytes);
        poner(CURLOPT_DEBUGDATA, this);
        poner(CURLOPT_NOPROGRESS, 0L);
        poner(CURLOPT_XFERINFOFUNCTION, &Descarga::AlAvanzar);
        poner(CURLOPT_XFERINFODATA, this);
        return aceptado;
    }

    /// Works on the request until its end; whether that was a good one.
    bool Esperar() {
        int activas = 1;
        while (curl_multi_perform(m_conexiones.get(), &activas) == CURLM_OK && !Agotada()) {
            if (activas == 0) {
                int restantes = 0;
                const CURLMsg* fin = curl_multi_info_read(m_conexiones.get(), &restantes);
                return fin != nullptr && fin->msg == CURLMSG_DONE && fin->data.result == CURLE_OK;
            }
            if (curl_multi_poll(m_conexiones.get(), nullptr, 0, kTurnoMs, nullptr) != CURLM_OK) {
                break;
            }
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        }
        return false;
    }

    [[nodiscard]] bool Agotada() const { return m_plazo.hasExpired() || m_recibido > m_limites.recibido; }

    // What the library calls. A number other than the one it expects ends the request.

    static size_t AlLlegarContenido(const char* bytes, size_t /*uno*/, size_t cuantos, void* descarga) {
        auto& yo = *static_cast<Descarga*>(descarga);
        if (yo.m_contenido.size() + static_cast<qsizetype>(cuantos) > yo.m_limites.tamano) {
            return CURL_WRITEFUNC_ERROR;
        }
        yo.m_contenido.append(bytes, static_cast<qsizetype>(cuantos));
        return cuantos;
    }

    static int AlLlegarBytes(CURL* /*peticion*/, curl_infotype clase, const char* /*bytes*/, size_t cuantos,
                             void* descarga) {
        if (clase == CURLINFO_HEADER_IN || clase == CURLINFO_DATA_IN || clase == CURLINFO_SSL_DATA_IN) {
            static_cast<Descarga*>(descarga)->m_recibido += static_cast<qint64>(cuantos);
        }
        return 0;
    }

    static int AlAvanzar(void* descarga, curl_off_t /*total*/, curl_off_t /*recibido*/,
                         curl_off_t /*totalEnviado*/, curl_off_t /*enviado*/) {
        return static_cast<Descarga*>(descarga)->Agotada() ? 1 : 0;
    }

    const LimitesDeDescarga& m_limites;
    QDeadlineTimer m_plazo;
    qint64 m_recibido = 0;
    QByteArray m_contenido;
    std::optional<QUrl> m_lugar;
    Conexiones m_conexiones{curl_multi_init()};
};

}  // namespace

std::optional<QByteArray> DescargarPorHttp(const QString& direccion, const LimitesDeDescarga& limites) {
    return BibliotecaLista() ? Descarga(limites).Traer(QUrl(direccion)) : std::nullopt;
}
