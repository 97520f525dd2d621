#include "printing/FechaDePresentacion.h"

#include "shell/Entorno.h"
#include "shell/Textos.h"
#include "shell/cZTFecha.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kTextoFechaErronea = 168;
constexpr qint32 kPrimeraFecha = 20030101;
/// The limit that the Euskera message names lies a year before the one that holds in both languages.
constexpr qint32 kPrimeraFechaMostradaEnEuskera = 20020101;

/// Language of the dates: that of the screen, whatever is stored.
QString Idioma() { return IDI(u"C"_s, u"E"_s); }

QString Mostrar(qint32 fecha) { return oFecha().LongToString(fecha, false, Idioma()); }

QString FechaAnteriorAlLimite() {
    return IDI(u"La Fecha de presentación no puede ser anterior al "_s + Mostrar(kPrimeraFecha),
               u"Aurkezpen data ezin da "_s + Mostrar(kPrimeraFechaMostradaEnEuskera) +
                   u"\n baino lehenagokoa izan"_s);
}

}  // namespace

QString MascaraDeFecha() { return IDI(u"__/__/____"_s, u"____/__/__"_s); }

QString FechaDeHoy() { return Mostrar(Entorno().Reloj().toString(u"yyyyMMdd"_s).toInt()); }

std::optional<QString> FaltaDeFecha(const QString& fecha, const QString& vacia, bool habilitado) {
    const QString escrita = fecha == vacia ? oFecha().fecVacia() : fecha;
    if (!oFecha().EsFecha(escrita, Idioma())) {
        return Texto(kTextoFechaErronea);
    }
    if (habilitado && oFecha().StringToLong(escrita, 0, Idioma()) < kPrimeraFecha) {
        return FechaAnteriorAlLimite();
    }
    return std::nullopt;
}
