#include "core/copies/ErrorDeCopia.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <array>

#include "core/base/TextosPropios.h"
#include "core/base/plataforma/SistemaFicheros.h"
#include "core/store/FalloAlmacen.h"

using namespace Qt::StringLiterals;

namespace {

struct Equivalencia {
    NumError numero;
    MotivoDeCopia motivo;
};

constexpr std::array kEquivalencias{
    Equivalencia{NumError::AlmacenNoEncontrado, MotivoDeCopia::NoExiste},
    Equivalencia{NumError::NoExisteRuta, MotivoDeCopia::NoExisteCarpeta},
    Equivalencia{NumError::AlmacenDanado, MotivoDeCopia::Danado},
    Equivalencia{NumError::AlmacenAjeno, MotivoDeCopia::Ajeno},
    Equivalencia{NumError::AlmacenVersion, MotivoDeCopia::Version},
    Equivalencia{NumError::AlmacenSoloLectura, MotivoDeCopia::SoloLectura},
    Equivalencia{NumError::AlmacenSinPermiso, MotivoDeCopia::SinPermiso},
    Equivalencia{NumError::ErrorAccesoRuta, MotivoDeCopia::SinPermiso},
    Equivalencia{NumError::AlmacenOcupado, MotivoDeCopia::Ocupado},
    Equivalencia{NumError::AlmacenDiscoLleno, MotivoDeCopia::DiscoLleno},
    Equivalencia{NumError::DiscoLleno, MotivoDeCopia::DiscoLleno},
    Equivalencia{NumError::AlmacenErrorDisco, MotivoDeCopia::ErrorDeDisco},
    Equivalencia{NumError::ErrorDispositivo, MotivoDeCopia::ErrorDeDisco},
};

/// Descriptions of the reasons of its own.
QString Causa(MotivoDeCopia motivo) {
    switch (motivo) {
        case MotivoDeCopia::EsFicheroDelPrograma:
            return TextoPropio(u"causa_en_uso");
        case MotivoDeCopia::SumaDistinta:
            return TextoPropio(u"causa_suma");
        case MotivoDeCopia::NombreNoValido:
            return TextoPropio(u"causa_nombre");
        case MotivoDeCopia::NombreLargo:
            return TextoPropio(u"causa_nombre_largo");
        case MotivoDeCopia::FechaSinAnotar:
            return TextoPropio(u"causa_fecha_copia");
        default:
            return {};
    }
}

NumError NumeroDe(MotivoDeCopia motivo) {
    return motivo == MotivoDeCopia::SumaDistinta ? NumError::AlmacenDanado : NumError::ErrorAccesoRuta;
}

/// Why what stands at a path cannot be opened.
MotivoDeCopia MotivoDeClase(ClaseFichero clase) {
    switch (clase) {
        case ClaseFichero::Carpeta:
            return MotivoDeCopia::EsCarpeta;
        case ClaseFichero::Tuberia:
            return MotivoDeCopia::EsTuberia;
        case ClaseFichero::Dispositivo:
            return MotivoDeCopia::EsDispositivo;
        case ClaseFichero::Conector:
            return MotivoDeCopia::EsConector;
        case ClaseFichero::BucleDeEnlaces:
            return MotivoDeCopia::EsBucleDeEnlaces;
        default:
            return MotivoDeCopia::SinPermiso;
    }
}

MotivoDeCopia MotivoDe(const ErrorZT& error, const QString& ruta) {
    const auto fila = std::ranges::find(kEquivalencias, error.Numero(),
                                        [](const Equivalencia& e) { return static_cast<int>(e.numero); });
    if (fila == kEquivalencias.end()) {
        return MotivoDeCopia::Otro;
    }
    const EstadoFichero estado = ExaminarFichero(ruta);
    if (fila->numero == NumError::AlmacenSinPermiso) {
        return MotivoDeClase(estado.clase);
    }
    const bool vacio = estado.clase == ClaseFichero::Regular && estado.tamano == 0;
    return fila->motivo == MotivoDeCopia::Danado && vacio ? MotivoDeCopia::Vacio : fila->motivo;
}

}  // namespace

ErrorDeCopia::ErrorDeCopia(MotivoDeCopia motivo, const QString& ruta)
    : ErrorZT(FalloDeAlmacen(NumeroDe(motivo), ruta, Causa(motivo))),
      m_fallo{motivo, QDir::toNativeSeparators(ruta), Descripcion()} {}

ErrorDeCopia::ErrorDeCopia(const ErrorZT& error, const QString& ruta)
    : ErrorZT(error), m_fallo(FalloDe(error, ruta)) {}

FalloDeCopia FalloDe(const ErrorZT& error, const QString& ruta) {
    if (const auto* propio = dynamic_cast<const ErrorDeCopia*>(&error)) {
        return propio->Fallo();
    }
    const MotivoDeCopia motivo = MotivoDe(error, ruta);
    const QString sitio = motivo == MotivoDeCopia::NoExisteCarpeta ? QFileInfo(ruta).path() : ruta;
    return {motivo, QDir::toNativeSeparators(sitio), error.Descripcion()};
}

bool EsOtraCosa(MotivoDeCopia motivo) {
    return motivo == MotivoDeCopia::EsCarpeta || motivo == MotivoDeCopia::EsTuberia ||
           motivo == MotivoDeCopia::EsDispositivo || motivo == MotivoDeCopia::EsConector ||
           motivo == MotivoDeCopia::EsBucleDeEnlaces;
}

bool EsDelContenido(MotivoDeCopia motivo) {
    return motivo == MotivoDeCopia::Vacio || motivo == MotivoDeCopia::Ajeno ||
           motivo == MotivoDeCopia::Danado || motivo == MotivoDeCopia::Version ||
           motivo == MotivoDeCopia::SumaDistinta;
}
