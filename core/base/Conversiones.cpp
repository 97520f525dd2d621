#include "core/base/Conversiones.h"

#include <QByteArray>
#include <cmath>
#include <limits>

#include "core/base/ErrorZT.h"
#include "core/base/Regional.h"

namespace {

/// Rounds to the nearest integer, halves to even, whatever rounding mode the process runs in.
double MitadAlPar(double d) {
    const double abajo = std::floor(d);
    const double resto = d - abajo;
    if (resto < 0.5) {
        return abajo;
    }
    if (resto > 0.5) {
        return abajo + 1.0;
    }
    return std::fmod(abajo, 2.0) == 0.0 ? abajo : abajo + 1.0;
}

template <class Entero>
Entero AEntero(double d) {
    const double redondo = MitadAlPar(d);
    if (!(redondo >= std::numeric_limits<Entero>::min() && redondo <= std::numeric_limits<Entero>::max())) {
        throw ErrorZT(NumError::Desbordamiento);
    }
    return static_cast<Entero>(redondo);
}

bool EsBlanco(QChar c) { return c == u' ' || c == u'\t' || c.unicode() == 0xA0; }

/// Walks a text that must read whole as a number and gathers it in the form of the C locale.
class LectorDeNumero {
  public:
    explicit LectorDeNumero(QStringView texto) : m_texto(texto) {}

    std::optional<double> Leer() {
        SaltarBlancos();
        bool hayDigitos = false;
        const bool signoDelante = Signo();
        SaltarBlancos();
        hayDigitos = ParteEntera();
        if (Es(Regional().decimal)) {
            ++m_pos;
            m_c += '.';
            hayDigitos = Digitos() || hayDigitos;
        }
        if (!hayDigitos || !Exponente()) {
            return {};
        }
        SaltarBlancos();
        if (!signoDelante) {
            Signo();
            SaltarBlancos();
        }
        return m_pos == m_texto.size() ? Convertir() : std::nullopt;
    }

  private:
    bool Es(QChar c) const { return m_pos < m_texto.size() && m_texto[m_pos] == c; }

    void SaltarBlancos() {
        while (m_pos < m_texto.size() && EsBlanco(m_texto[m_pos])) {
            ++m_pos;
        }
    }

    bool Signo() {
        if (!Es(u'-') && !Es(u'+')) {
            return false;
        }
        m_negativo = Es(u'-');
        ++m_pos;
        return true;
    }

    bool Digitos() {
        const qsizetype desde = m_pos;
        while (m_pos < m_texto.size() && EsDigito(m_texto[m_pos])) {
            m_c += m_texto[m_pos++].toLatin1();
        }
        return m_pos > desde;
    }

    bool ParteEntera() {
        const bool hay = Digitos();
        while (hay && Es(Regional().grupo)) {
            ++m_pos;
            Digitos();
        }
        return hay;
    }

    /// False when an exponent starts and has no digits.
    bool Exponente() {
        if (!Es(u'E') && !Es(u'e')) {
            return true;
        }
        ++m_pos;
        m_c += 'e';
        if (Es(u'-') || Es(u'+')) {
            m_c += m_texto[m_pos++].toLatin1();
        }
        return Digitos();
    }

    std::optional<double> Convertir() const {
        bool bien = false;
        const double d = m_c.toDouble(&bien);
        if (!bien || !std::isfinite(d)) {
            return {};
        }
        return m_negativo ? -d : d;
    }

    QStringView m_texto;
    qsizetype m_pos = 0;
    QByteArray m_c;
    bool m_negativo = false;
};

}  // namespace

bool EsDigito(QChar c) { return c >= u'0' && c <= u'9'; }

qint16 DobleAEntero16(double d) { return AEntero<qint16>(d); }

qint32 DobleAEntero32(double d) { return AEntero<qint32>(d); }

std::optional<double> LeerNumero(QStringView texto) { return LectorDeNumero(texto).Leer(); }

bool EsNumerico(QStringView texto) { return LeerNumero(texto).has_value(); }

double TextoADoble(QStringView texto) {
    const auto numero = LeerNumero(texto);
    if (!numero) {
        throw ErrorZT(NumError::NoCoincidenTipos);
    }
    return *numero;
}

double ValorInicial(QStringView texto) {
    QByteArray c;
    bool punto = false;
    for (const QChar x : texto) {
        if (EsBlanco(x)) {
            continue;
        }
        if (EsDigito(x) || (c.isEmpty() && (x == u'-' || x == u'+'))) {
            c += x.toLatin1();
        } else if (x == u'.' && !punto) {
            punto = true;
            c += '.';
        } else {
            break;
        }
    }
    return c.toDouble();
}

QString NumeroATexto(double d) {
    QString texto = QString::number(d, 'g', kDigitosSignificativos);
    texto.replace(u'.', Regional().decimal);
    texto.replace(u'e', u'E');
    return texto;
}
