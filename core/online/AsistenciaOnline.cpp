#include "core/online/AsistenciaOnline.h"

#include <QUrl>

#include "core/base/ErrorZT.h"
#include "core/online/DireccionWeb.h"
#include "core/online/plataforma/Navegador.h"
#include "core/run/Entorno.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "core/services/SvrKLComunLib/cMiscelaneos.h"

using namespace Qt::StringLiterals;

namespace {

SvrKLComunLib::cMiscelaneos Miscelaneos() {
    auto miscelaneos = ServidorDeReferencia<SvrKLComunLib::cMiscelaneos>();
    miscelaneos.idioma = Entorno().OffsetIdioma;
    return miscelaneos;
}

}  // namespace

void AbrirAsistencia() { Miscelaneos().AccesoAyuOnline(); }

void DescribirAsistencia(qint32 ventana) {
    SvrKLComunLib::cMiscelaneos miscelaneos = Miscelaneos();
    miscelaneos.Parent = ventana;
    miscelaneos.MostrarOnlineInfo();
}

void AbrirEnNavegador(const QString& direccion) {
    const QUrl url(direccion, QUrl::StrictMode);
    if (!EsDireccionWeb(url)) {
        throw ErrorZT(NumError::LlamadaNoValida,
                      TextoDeError(NumError::LlamadaNoValida) + u": "_s + direccion);
    }
    const QString navegador = BuscarNavegador();
    if (navegador.isEmpty()) {
        Mensaje(TextoPropio(u"online_sin_navegador") + u"\r\n"_s + direccion, Texto(Id::AsistenciaOnline),
                true);
        return;
    }
    AbrirConNavegador(navegador, url.toString(QUrl::FullyEncoded));
}
