#include "core/printing/FechaDePresentacion.h"

#include <QDate>

#include "core/run/Entorno.h"
#include "core/run/Textos.h"
#include "core/run/cZTFecha.h"

using namespace Qt::StringLiterals;

namespace {

/// A format of dates: "dd", "mm" and "yyyy" for day, month and year.
constexpr qint32 kPrimeraFecha = 20030101;
/// The limit that the Euskera message names lies a year before the one that holds in both languages:
/// docs/reglas.md, limite-de-fecha-por-idioma.
constexpr qint32 kPrimeraFechaMostradaEnEuskera = 20020101;

/// Language of the dates: that of the screen, whatever is stored.
QString Idioma() { return IDI(u"C"_s, u"E"_s); }

QString Mostrar(qint32 fecha) { return oFecha().LongToString(fecha, false, Idioma()); }

QString MostrarConFormato(qint32 fecha) {
    constexpr int kAno = 10'000;
    constexpr int kMes = 100;
    const QDate dia(fecha / kAno, fecha / kMes % kMes, fecha % kMes);
    // The library writes months with capitals.
    return dia.toString(Texto(Id::FormatoDeFecha).replace(u'm', u'M'));
}

/// The mask counts as a date, the empty text does not.
bool EsFechaEscrita(const QString& fecha, const QString& vacia) {
    return fecha == vacia || (!fecha.isEmpty() && oFecha().EsFecha(fecha, Idioma()));
}

/// Its number; 0 for the mask.
qint32 Numero(const QString& fecha, const QString& vacia) {
    return fecha == vacia ? 0 : oFecha().StringToLong(fecha, 0, Idioma());
}

QString FechaAnteriorAlLimite() {
    return IDI(u"La Fecha de presentación no puede ser anterior al "_s + MostrarConFormato(kPrimeraFecha),
               u"Aurkezpen data ezin da "_s + MostrarConFormato(kPrimeraFechaMostradaEnEuskera) +
                   u"\n baino lehenagokoa izan"_s);
}

}  // namespace

QString MascaraDeFecha() { return IDI(u"__/__/____"_s, u"____/__/__"_s); }

QString FechaDeHoy() { return Mostrar(Entorno().Reloj().toString(u"yyyyMMdd"_s).toInt()); }

std::optional<QString> FaltaDeFecha(const QString& fecha, const QString& vacia, bool habilitado) {
    if (!EsFechaEscrita(fecha, vacia)) {
        return Texto(Id::FechaErronea);
    }
    if (habilitado && Numero(fecha, vacia) < kPrimeraFecha) {
        return FechaAnteriorAlLimite();
    }
    return std::nullopt;
}
