#include "forms/copies/TextosDeCopia.h"

#include <algorithm>
#include <array>

#include "core/run/Entorno.h"
#include "core/run/Textos.h"
#include "core/run/cZTFecha.h"

using namespace Qt::StringLiterals;

namespace {

struct Par {
    MotivoDeCopia motivo{};
    QStringView clave;
};

constexpr std::array kMotivos{Par{MotivoDeCopia::NoExiste, u"copia_motivo_no_existe"},
                              Par{MotivoDeCopia::NoExisteCarpeta, u"copia_motivo_no_existe_carpeta"},
                              Par{MotivoDeCopia::EsCarpeta, u"copia_motivo_es_carpeta"},
                              Par{MotivoDeCopia::EsTuberia, u"copia_motivo_es_tuberia"},
                              Par{MotivoDeCopia::EsDispositivo, u"copia_motivo_es_dispositivo"},
                              Par{MotivoDeCopia::EsConector, u"copia_motivo_es_conector"},
                              Par{MotivoDeCopia::EsBucleDeEnlaces, u"copia_motivo_es_bucle"},
                              Par{MotivoDeCopia::NombreNoValido, u"copia_motivo_nombre"},
                              Par{MotivoDeCopia::NombreLargo, u"copia_motivo_nombre_largo"},
                              Par{MotivoDeCopia::EsFicheroDelPrograma, u"copia_motivo_del_programa"},
                              Par{MotivoDeCopia::Vacio, u"copia_motivo_vacio"},
                              Par{MotivoDeCopia::Ajeno, u"copia_motivo_ajeno"},
                              Par{MotivoDeCopia::Danado, u"copia_motivo_danado"},
                              Par{MotivoDeCopia::Version, u"copia_motivo_version"},
                              Par{MotivoDeCopia::SumaDistinta, u"copia_motivo_suma"},
                              Par{MotivoDeCopia::SoloLectura, u"copia_motivo_solo_lectura"},
                              Par{MotivoDeCopia::SinPermiso, u"copia_motivo_sin_permiso"},
                              Par{MotivoDeCopia::Ocupado, u"copia_motivo_ocupado"},
                              Par{MotivoDeCopia::DiscoLleno, u"copia_motivo_disco_lleno"},
                              Par{MotivoDeCopia::ErrorDeDisco, u"copia_motivo_disco"},
                              Par{MotivoDeCopia::FechaSinAnotar, u"copia_motivo_fecha"}};

}  // namespace

QString TextoDeMotivo(const FalloDeCopia& fallo) {
    const auto* par = std::ranges::find(kMotivos, fallo.motivo, &Par::motivo);
    return par == kMotivos.end() ? fallo.causa : TextoPropio(par->clave);
}

QString TextoDeFallo(QStringView clave, const FalloDeCopia& fallo) {
    return TextoPropio(clave) + u"\n\n"_s + fallo.fichero + u"\n\n"_s + TextoDeMotivo(fallo);
}

QString TextoDeDia(QDate dia) {
    if (!dia.isValid()) {
        return TextoPropio(u"copia_sin_fecha");
    }
    return oFecha().LongToString(dia.toString(u"yyyyMMdd"_s).toInt(), false, IDI(u"C"_s, u"E"_s));
}

QString TextoDeMomento(const ResumenDeCopia& copia) {
    const QString dia = TextoDeDia(copia.fecha);
    return copia.hora.isValid() ? dia + u' ' + copia.hora.toString(u"hh:mm:ss"_s) : dia;
}
