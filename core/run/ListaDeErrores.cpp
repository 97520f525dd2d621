#include "core/run/ListaDeErrores.h"

#include <algorithm>
#include <array>

#include "core/run/Textos.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kColumnaGrupo = 0;
constexpr int kColumnaCodigo = 1;

/// Text id of each code. 9 is the bare name of a field, and 10 repeats 2.
constexpr std::array kTextos{Id::NifErroneo,
                             Id::FaltaNombre,
                             Id::FaltaDomicilio,
                             Id::NifRepetido,
                             Id::FaltaTipoDeVia,
                             Id::FaltaProvincia,
                             Id::CodigoPostalIncorrecto,
                             Id::CodigoPostalDeOtraProvincia,
                             Id::FaltaMunicipio,
                             Id::FechaDePresentacion,
                             Id::FaltaDomicilio,
                             Id::FaltaEjercicio,
                             Id::FaltaPeriodo,
                             Id::DeclaracionRepetida,
                             Id::CimRepetido,
                             Id::LongitudDelCim,
                             Id::FormatoDeCim,
                             Id::FaltaDomicilioDeEstablecimiento,
                             Id::TelefonoLargo};

/// Where the search for each cut starts, counted from 0.
constexpr int kPrimerCorte = 49;
constexpr int kSegundoCorte = 99;

}  // namespace

QString TextoDeCodigo(int codigo) {
    if (codigo < 0 || codigo >= static_cast<int>(kTextos.size())) {
        return {};
    }
    return Texto(kTextos.at(static_cast<std::size_t>(codigo)));
}

QStringList CortarEnLineas(const QString& texto) {
    const auto corte1 = texto.indexOf(u' ', kPrimerCorte);
    if (corte1 < 0) {
        return {texto.trimmed()};
    }
    const QString primera = texto.left(corte1).trimmed();
    const auto corte2 = texto.indexOf(u' ', kSegundoCorte);
    if (corte2 < 0) {
        return {primera, texto.mid(corte1).trimmed()};
    }
    return {primera, texto.mid(corte1, corte2 - corte1).trimmed(), texto.mid(corte2).trimmed()};
}

QStringList LineasDeErrores(const Tabla& errores) {
    QStringList lineas;
    if (errores.EsNula() || errores(kColumnaGrupo, 0).EsVacio()) {
        return lineas;
    }
    const int ultima = errores.UltimaFila();
    int grupoMaximo = 0;
    for (int fila = 0; fila <= ultima; ++fila) {
        grupoMaximo = std::max<int>(grupoMaximo, errores(kColumnaGrupo, fila).aEntero16());
    }
    int numero = 0;
    for (int grupo = 0; grupo <= grupoMaximo; ++grupo) {
        for (int fila = 0; fila <= ultima; ++fila) {
            if (errores(kColumnaGrupo, fila).aEntero16() != grupo) {
                continue;
            }
            QStringList cortadas = CortarEnLineas(TextoDeCodigo(errores(kColumnaCodigo, fila).aEntero32()));
            cortadas.first().prepend(QString::number(++numero) + u"- "_s);
            lineas += cortadas;
        }
    }
    return lineas;
}
