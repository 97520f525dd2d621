#include "core/base/Valor.h"

#include "core/base/Conversiones.h"
#include "core/base/ErrorZT.h"

using namespace Qt::StringLiterals;

Valor Valor::Nulo() noexcept {
    Valor v;
    v.m_dato = TNulo{};
    return v;
}

bool Valor::EsNumerico() const {
    if (EsNulo()) {
        return false;
    }
    const auto* texto = std::get_if<QString>(&m_dato);
    return texto == nullptr || ::EsNumerico(*texto);
}

double Valor::aDoble() const {
    struct Visitante {
        double operator()(std::monostate) const { return 0.0; }
        double operator()(TNulo) const { throw ErrorZT(NumError::UsoNoValidoDeNull); }
        double operator()(bool b) const { return b ? -1.0 : 0.0; }
        double operator()(qint16 n) const { return n; }
        double operator()(qint32 n) const { return n; }
        double operator()(double d) const { return d; }
        double operator()(const QString& s) const { return TextoADoble(s); }
    };
    return std::visit(Visitante{}, m_dato);
}

qint16 Valor::aEntero16() const { return DobleAEntero16(aDoble()); }

qint32 Valor::aEntero32() const { return DobleAEntero32(aDoble()); }

QString Valor::aTexto() const {
    struct Visitante {
        QString operator()(std::monostate) const { return {}; }
        QString operator()(TNulo) const { throw ErrorZT(NumError::UsoNoValidoDeNull); }
        QString operator()(bool b) const { return b ? u"Verdadero"_s : u"Falso"_s; }
        QString operator()(qint16 n) const { return QString::number(n); }
        QString operator()(qint32 n) const { return QString::number(n); }
        QString operator()(double d) const { return NumeroATexto(d); }
        QString operator()(const QString& s) const { return s; }
    };
    return std::visit(Visitante{}, m_dato);
}
