#include "core/base/EntradaNumerica.h"

#include <algorithm>
#include <vector>

#include "core/base/Conversiones.h"
#include "core/base/Regional.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QChar kMenosTipografico(0x2212);
constexpr qsizetype kDigitosDeGrupo = 3;

bool EsPuntoOComa(QChar c) { return c == u'.' || c == u','; }

/// The blanks that stand between thousands: common, no-break, narrow no-break and thin.
bool EsBlancoDeGrupo(QChar c) { return c == u' ' || c == u'\u00A0' || c == u'\u202F' || c == u'\u2009'; }

QChar UnSoloBlanco(QChar c) { return EsBlancoDeGrupo(c) ? QChar(u' ') : c; }

bool EsSeparador(QChar c) {
    return EsPuntoOComa(c) || c == Regional().decimal || c == UnSoloBlanco(Regional().grupo);
}

/// Whether a separator can be the decimal one; any other can but make groups.
bool PuedeSerDecimal(QChar c) { return EsPuntoOComa(c) || c == Regional().decimal; }

QString SinAdornos(const QString& texto) {
    QString numero = texto.trimmed();
    if (numero.startsWith(u'€')) {
        numero = numero.mid(1).trimmed();
    } else if (numero.endsWith(u'€')) {
        numero = numero.chopped(1).trimmed();
    }
    std::ranges::transform(numero, numero.begin(), UnSoloBlanco);
    return numero.replace(kMenosTipografico, u'-');
}

/// A text without its sign: runs of digits, and the separators between them.
struct Partes {
    std::vector<QString> digitos{QString()};
    std::vector<QChar> separadores;
};

std::optional<Partes> Partir(QStringView texto) {
    Partes partes;
    for (const QChar c : texto) {
        if (EsDigito(c)) {
            partes.digitos.back() += c;
        } else if (EsSeparador(c) || EsBlancoDeGrupo(c)) {
            partes.separadores.push_back(c);
            partes.digitos.emplace_back();
        } else {
            return {};
        }
    }
    return partes;
}

/// Whether the first `cuantos` separators, which are not `decimal`, make whole groups of three. No thousands
/// begin with a zero.
bool HacenGrupos(const Partes& partes, std::size_t cuantos, QChar decimal) {
    const QString& primero = partes.digitos.front();
    bool bien = !primero.isEmpty() && primero.size() <= kDigitosDeGrupo && !primero.startsWith(u'0');
    for (std::size_t i = 0; i < cuantos && bien; ++i) {
        bien = partes.digitos[i + 1].size() == kDigitosDeGrupo && partes.separadores[i] != decimal &&
               partes.separadores[i] == partes.separadores.front();
    }
    return bien;
}

/// Digits with the decimal separator of the settings: the first `enteras` runs are the whole part.
QString Unir(const Partes& partes, std::size_t enteras) {
    QString numero;
    for (std::size_t i = 0; i < enteras; ++i) {
        numero += partes.digitos[i];
    }
    const QString decimales = enteras < partes.digitos.size() ? partes.digitos.back() : QString();
    return decimales.isEmpty() ? numero : numero + Regional().decimal + decimales;
}

/// The number without its sign; empty when there is none.
QString Leer(const Partes& partes) {
    const std::size_t n = partes.separadores.size();
    if (n == 0) {
        return Unir(partes, 1);
    }
    const QChar ultimo = partes.separadores.back();
    const bool todosIguales = std::ranges::all_of(partes.separadores, [&](QChar c) { return c == ultimo; });
    if (ultimo != Regional().decimal && todosIguales && HacenGrupos(partes, n, Regional().decimal)) {
        return Unir(partes, n + 1);
    }
    const bool decimal = PuedeSerDecimal(ultimo) && (n == 1 || HacenGrupos(partes, n - 1, ultimo));
    return decimal ? Unir(partes, n) : QString();
}

qsizetype DigitosEnteros(const QString& numero) {
    const qsizetype decimal = numero.indexOf(Regional().decimal);
    return std::ranges::count_if(decimal < 0 ? numero : numero.left(decimal), EsDigito);
}

}  // namespace

int EnterosDeMascara(QStringView mascara) {
    const QStringView enteros = mascara.left(mascara.indexOf(u'.'));
    return static_cast<int>(std::ranges::count_if(enteros, [](QChar c) { return c == u'#' || c == u'0'; }));
}

bool EsEntradaNumerica(QStringView texto, int enteros) {
    if (texto.startsWith(u'-')) {
        texto = texto.mid(1);
    }
    const auto ultimo = std::find_if(texto.crbegin(), texto.crend(), PuedeSerDecimal);
    const auto fin = ultimo == texto.crend() ? texto.cend() : ultimo.base();
    return std::count_if(texto.cbegin(), fin, EsDigito) <= enteros &&
           std::ranges::all_of(texto, [](QChar c) { return EsDigito(c) || EsSeparador(UnSoloBlanco(c)); });
}

std::optional<double> LeerEntrada(const QString& texto, int enteros) {
    const QString numero = LimpiarNumero(texto);
    return numero.isEmpty() || DigitosEnteros(numero) > enteros ? std::nullopt : LeerNumero(numero);
}

QString TeclaNumerica(QChar tecla) {
    const bool suya = EsDigito(tecla) || tecla == u'-' || PuedeSerDecimal(tecla);
    return suya ? QString(tecla) : QString();
}

QString LimpiarNumero(const QString& texto) {
    QString numero = SinAdornos(texto);
    const bool negativo = numero.startsWith(u'-');
    if (negativo || numero.startsWith(u'+')) {
        numero.remove(0, 1);
    }
    const auto partes = Partir(numero);
    const QString leido = partes ? Leer(*partes) : QString();
    return leido.isEmpty() || !negativo ? leido : u'-' + leido;
}
