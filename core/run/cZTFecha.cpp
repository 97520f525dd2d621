#include "core/run/cZTFecha.h"

#include <QDate>
#include <algorithm>
#include <array>

#include "core/base/Conversiones.h"
#include "core/base/ErrorZT.h"
#include "core/base/Formatos.h"
#include "core/base/Instancias.h"
#include "core/run/Entorno.h"
#include "core/services/svrZELT/cZTDatosGeneral.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int kDiaMaximo = 31;
constexpr int kMesMaximo = 12;
constexpr int kAnoDeCuatroCifras = 1000;

/// Year, month and day of a date text and the two characters between them.
struct Partes {
    int ano = 0;
    int mes = 0;
    int dia = 0;
    QString separadores;
};

bool EsCastellano(const QString& codigo) { return codigo == u"C"; }

/// Strict conversion with a zero in front, so that an empty part counts as 0.
int Estricta(const QString& parte) { return DobleAEntero32(TextoADoble(u'0' + parte)); }

/// Conversion that stops at the first character that is no digit.
int HastaNoDigito(const QString& parte) {
    const auto* fin = std::find_if_not(parte.begin(), parte.end(), EsDigito);
    return DobleAEntero32(TextoADoble(u'0' + parte.left(fin - parte.begin())));
}

Partes Partir(const QString& s, bool castellano) {
    if (castellano) {
        return {HastaNoDigito(s.mid(6)), Estricta(s.mid(3, 2)), Estricta(s.mid(0, 2)),
                s.mid(2, 1) + s.mid(5, 1)};
    }
    return {Estricta(s.mid(0, 4)), Estricta(s.mid(5, 2)), HastaNoDigito(s.mid(8)), s.mid(4, 1) + s.mid(7, 1)};
}

/// Leap years of the Gregorian calendar.
bool EsBisiesto(int ano) { return ano % 4 == 0 && (ano % 100 != 0 || ano % 400 == 0); }

int DiasDelMes(int mes, int ano) {
    constexpr std::array<int, kMesMaximo> kDias{31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return mes == 2 && !EsBisiesto(ano) ? 28 : kDias.at(static_cast<std::size_t>(mes - 1));
}

bool Existe(const Partes& p, qint16 anoLimite) {
    if (p.separadores != u"//" || p.ano < kAnoDeCuatroCifras) {
        return false;
    }
    if (anoLimite != 0 && p.ano < anoLimite) {
        return false;
    }
    return p.mes >= 1 && p.mes <= kMesMaximo && p.dia >= 1 && p.dia <= kDiaMaximo &&
           p.dia <= DiasDelMes(p.mes, p.ano);
}

}  // namespace

QString cZTFecha::IDI() const {
    Entorno().OffsetIdioma = OffsetDeIdioma(m_idi);
    return m_idi;
}

void cZTFecha::IDI(const QString& codigo) {
    m_idi = codigo;
    ModificarIdioma(codigo);
    Entorno().OffsetIdioma = OffsetDeIdioma(codigo);
}

void cZTFecha::ModificarIdioma(const QString& codigo) const {
    ServidorDeUsuario<svrZELT::cZTDatosGeneral>().ModificarIdioma(codigo);
}

void cZTFecha::LeerIdioma() { IDI(ServidorDeUsuario<svrZELT::cZTDatosGeneral>().ObtenerIdioma()); }

QString cZTFecha::fecVacia() const { return m_idiVacia == u"E" ? m_vaciaEuskera : m_vaciaCastellano; }

qint32 cZTFecha::miYear(const QString& s) const {
    if (m_idiVacia == u"E") {
        return Estricta(s.trimmed().left(4));
    }
    for (const auto formato : {u"d/M/yyyy", u"yyyy/M/d", u"d-M-yyyy", u"yyyy-M-d"}) {
        const QDate fecha = QDate::fromString(s.trimmed(), QStringView(formato));
        if (fecha.isValid()) {
            return fecha.year();
        }
    }
    throw ErrorZT(NumError::NoCoincidenTipos);
}

bool cZTFecha::EsFecha(const QString& s, QString idioma, qint16 anoLimite) const {
    if (idioma.isEmpty()) {
        idioma = IDI();
    }
    if (s == fecVacia()) {
        return true;
    }
    try {
        return Existe(Partir(s, EsCastellano(idioma)), anoLimite);
    } catch (const ErrorZT&) {
        return false;
    }
}

qint32 cZTFecha::StringToLong(const QString& s, qint16 anoLimite, QString idioma) const {
    if (s == fecVacia()) {
        return 0;
    }
    if (idioma.isEmpty()) {
        idioma = IDI();
    }
    if (!EsFecha(s, idioma, anoLimite)) {
        return -1;
    }
    qint32 resultado = 0;
    try {
        const bool castellano = EsCastellano(idioma);
        const QString ano = castellano ? s.mid(6, 4) : s.left(4);
        const QString mes = castellano ? s.mid(3, 2) : s.mid(5, 2);
        const QString dia = castellano ? s.left(2) : s.mid(8);
        resultado = Valor(Formatear(Valor(ano), u"0000") + Formatear(Valor(mes), u"00") +
                          Formatear(Valor(dia), u"00"))
                        .aEntero32();
    } catch (const ErrorZT&) {
        // What is no number leaves the result as it stands: a bad date is a result and not a failure.
    }
    return resultado;
}

QString cZTFecha::LongToString(qint32 lFecha, bool invertido, QString idioma) const {
    if (idioma.isEmpty()) {
        idioma = IDI();
    }
    if (lFecha < 1) {
        return fecVacia();
    }
    const QString n = QString::number(lFecha);
    const QString ano = invertido ? n.right(4) : n.left(4);
    const QString mes = invertido ? n.mid(2, 2) : n.mid(4, 2);
    const QString dia = invertido ? n.left(2) : n.right(2);
    const QString texto =
        EsCastellano(idioma) ? dia + u'/' + mes + u'/' + ano : ano + u'/' + mes + u'/' + dia;
    return EsFecha(texto, idioma) ? texto : fecVacia();
}

QString cZTFecha::SufijoFecha(qint16 intDia) {
    if (intDia < 1 || intDia > kDiaMaximo) {
        return {};
    }
    if (intDia == 11 || intDia == 31) {
        return u"n"_s;
    }
    const bool ean = intDia == 1 || intDia % 5 == 0 || intDia == 21;
    return ean && intDia != 20 ? u"ean"_s : u"an"_s;
}

cZTFecha& oFecha() { return InstanciaUnica<cZTFecha>(); }
