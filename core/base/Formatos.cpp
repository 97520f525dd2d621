#include "core/base/Formatos.h"

#include <QByteArray>
#include <algorithm>
#include <cmath>

#include "core/base/Conversiones.h"
#include "core/base/Regional.h"

using namespace Qt::StringLiterals;

namespace {

/// A number as the digits that people see: 0.d1d2d3... times ten to the `exponente`.
struct Decimal {
    bool negativo = false;
    QByteArray digitos;
    int exponente = 0;
};

Decimal ADecimal(double d) {
    Decimal resultado;
    resultado.negativo = std::signbit(d);
    if (d == 0.0) {
        return resultado;
    }
    const QByteArray e = QByteArray::number(std::fabs(d), 'e', kDigitosSignificativos - 1);
    const auto corte = e.indexOf('e');
    resultado.digitos = e.left(corte).replace('.', QByteArray());
    resultado.exponente = e.mid(corte + 1).toInt() + 1;
    while (resultado.digitos.endsWith('0')) {
        resultado.digitos.chop(1);
    }
    return resultado;
}

/// Rounds to `decimales` places, halves away from zero.
void RedondearDecimal(Decimal& n, int decimales) {
    const int quedan = n.exponente + decimales;
    if (quedan >= n.digitos.size()) {
        return;
    }
    if (quedan < 0) {
        n.digitos.clear();
        return;
    }
    bool sube = n.digitos.at(quedan) >= '5';
    n.digitos.truncate(quedan);
    for (auto i = n.digitos.size() - 1; sube && i >= 0; --i) {
        sube = n.digitos.at(i) == '9';
        n.digitos[i] = sube ? '0' : static_cast<char>(n.digitos.at(i) + 1);
    }
    if (sube) {
        n.digitos.prepend('1');
        ++n.exponente;
    }
}

char DigitoEn(const Decimal& n, int posicion) {
    return posicion >= 0 && posicion < n.digitos.size() ? n.digitos.at(posicion) : '0';
}

bool EsCero(const Decimal& n) {
    return std::all_of(n.digitos.begin(), n.digitos.end(), [](char c) { return c == '0'; });
}

struct Mascara {
    int enterosMinimos = 0;
    int decimales = 0;
    int decimalesMinimos = 0;
    bool miles = false;
};

Mascara LeerMascara(QStringView texto) {
    Mascara m;
    bool enDecimales = false;
    for (const QChar c : texto) {
        if (c == u'.') {
            enDecimales = true;
        } else if (c == u',') {
            m.miles = true;
        } else if (enDecimales) {
            ++m.decimales;
            if (c == u'0') {
                m.decimalesMinimos = m.decimales;
            }
        } else if (c == u'0' || m.enterosMinimos > 0) {
            ++m.enterosMinimos;
        }
    }
    return m;
}

QString ParteEntera(const Decimal& n, const Mascara& m) {
    QString entera;
    for (int i = 0; i < n.exponente; ++i) {
        entera += QLatin1Char(DigitoEn(n, i));
    }
    entera = entera.rightJustified(m.enterosMinimos, u'0');
    if (m.miles) {
        for (auto i = entera.size() - 3; i > 0; i -= 3) {
            entera.insert(i, Regional().grupo);
        }
    }
    return entera;
}

QString ParteDecimal(const Decimal& n, const Mascara& m) {
    QString decimal;
    for (int i = 0; i < m.decimales; ++i) {
        decimal += QLatin1Char(DigitoEn(n, n.exponente + i));
    }
    while (decimal.size() > m.decimalesMinimos && decimal.endsWith(u'0')) {
        decimal.chop(1);
    }
    return decimal;
}

}  // namespace

QString Formatear(const Valor& valor, QStringView mascara) {
    if (valor.EsNulo() || valor.EsVacio()) {
        return {};
    }
    if (valor.EsTexto() && !valor.EsNumerico()) {
        return valor.aTexto();
    }
    const Mascara m = LeerMascara(mascara);
    Decimal n = ADecimal(valor.aDoble());
    RedondearDecimal(n, m.decimales);
    QString texto = ParteEntera(n, m);
    if (m.decimales > 0) {
        texto += Regional().decimal + ParteDecimal(n, m);
    }
    return n.negativo && !EsCero(n) ? u'-' + texto : texto;
}

QString SinBlancosALaDerecha(const QString& texto) {
    qsizetype largo = texto.size();
    while (largo > 0 && texto.at(largo - 1) == u' ') {
        --largo;
    }
    return texto.left(largo);
}
