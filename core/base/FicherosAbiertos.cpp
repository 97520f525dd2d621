#include "core/base/FicherosAbiertos.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <vector>

#include "core/base/ErrorZT.h"
#include "core/base/FalloDeFichero.h"
#include "core/base/TextosPropios.h"
#include "core/base/plataforma/SistemaFicheros.h"

using namespace Qt::StringLiterals;

namespace {

std::vector<FicheroZT*>& Abiertos() {
    static std::vector<FicheroZT*> abiertos;
    return abiertos;
}

/// Why a file could not be opened: told by what stands at its path and, where that tells nothing, by the
/// words of the system.
ErrorZT FalloDeApertura(const QFile& fichero, QIODevice::OpenMode modo, const QString& ruta) {
    const NumError deSistema = NumeroDelUltimoFallo(NumError::PermisoDenegado);
    const QStringView causa = CausaDelUltimoFallo();
    const QFileInfo info(ruta);
    if (info.isDir()) {
        return FalloSinCausa(NumError::ErrorAccesoRuta, ruta);
    }
    if (!info.dir().exists()) {
        return FalloSinCausa(NumError::NoExisteRuta, ruta);
    }
    if (!info.exists() && !(modo & QIODevice::WriteOnly)) {
        return FalloSinCausa(NumError::NoExisteFichero, ruta);
    }
    if (deSistema == NumError::DiscoLleno) {
        return FalloDeFichero(deSistema, ruta);
    }
    // On opening, the resource that lacks is a handle of the system, not room on the disk.
    const bool sinRecursos = fichero.error() == QFileDevice::ResourceError;
    return FalloDeFichero(sinRecursos ? NumError::ErrorDispositivo : NumError::PermisoDenegado, ruta,
                          TextoPropio(causa));
}

}  // namespace

FicheroZT::FicheroZT(const QString& ruta, QIODevice::OpenMode modo, const QString& destino)
    : m_fichero(ruta) {
    if (!m_fichero.open(modo)) {
        throw FalloDeApertura(m_fichero, modo, destino.isEmpty() ? ruta : destino);
    }
    Abiertos().push_back(this);
}

FicheroZT::~FicheroZT() { std::erase(Abiertos(), this); }

QFile& FicheroZT::Fichero() {
    if (!m_fichero.isOpen()) {
        throw ErrorZT(NumError::NombreFicheroIncorrecto);
    }
    return m_fichero;
}

void CerrarFicherosAbiertos() {
    for (FicheroZT* fichero : Abiertos()) {
        if (fichero->Abierto() && fichero->m_antes) {
            fichero->m_antes();
        }
        fichero->Cerrar();
    }
}
