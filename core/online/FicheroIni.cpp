#include "core/online/FicheroIni.h"

// The library is compiled here, and told to leave bytes as they are.
#define SI_IMPLEMENTATION
#define SI_NO_CONVERSION
#include <SimpleIni.h>

#include <algorithm>

#include "core/base/FalloDeFichero.h"
#include "core/base/FicherosAbiertos.h"
#include "core/base/Windows1252.h"

struct FicheroIni::Contenido {
    CSimpleIniA ini;
};

namespace {

QByteArray LeerEntero(const QString& ruta) {
    FicheroZT fichero(ruta, QIODevice::ReadOnly);
    QByteArray bytes = fichero.Fichero().read(FicheroIni::kTamanoMaximo + 1);
    if (fichero.Fichero().error() != QFileDevice::NoError) {
        throw FalloSinCausa(NumError::ErrorDispositivo, ruta);
    }
    if (bytes.size() > FicheroIni::kTamanoMaximo) {
        throw FalloSinCausa(NumError::LlamadaNoValida, ruta);
    }
    return bytes;
}

}  // namespace

FicheroIni::FicheroIni(const QString& ruta) : m_contenido(std::make_unique<Contenido>()) {
    const QByteArray bytes = LeerEntero(ruta);
    // A repeated key is kept beside the first, which is the one that is given; else it would replace it.
    m_contenido->ini.SetMultiKey(true);
    if (m_contenido->ini.LoadData(bytes.constData(), static_cast<std::size_t>(bytes.size())) < 0) {
        throw FalloSinCausa(NumError::ErrorDispositivo, ruta);
    }
}

FicheroIni::~FicheroIni() = default;

QString FicheroIni::Leer(const char* seccion, const char* clave) const {
    const QByteArrayView valor(m_contenido->ini.GetValue(seccion, clave, ""));
    return DeWindows1252(valor.first(std::min(valor.size(), kLargoMaximo))).trimmed();
}
