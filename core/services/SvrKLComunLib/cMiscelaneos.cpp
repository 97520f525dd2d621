#include "core/services/SvrKLComunLib/cMiscelaneos.h"

#include <QUrl>
#include <QUrlQuery>
#include <algorithm>

#include "core/base/CanalAsistencia.h"
#include "core/base/Conversiones.h"
#include "core/store/DatosGenerales.h"

using namespace Qt::StringLiterals;

namespace SvrKLComunLib {

namespace {

constexpr qsizetype kLargo = 9;
constexpr QStringView kLetrasDePersona = u"TRWAGMYFPDXBNJZSQVHLCKE";
constexpr QStringView kLetrasDeEntidad = u"JABCDEFGHI";
constexpr QStringView kEspeciales = u"KLM";
constexpr QStringView kExtranjeros = u"XYZ";
constexpr QStringView kEntidadesConDigito = u"ABEH";
constexpr QStringView kEntidadesConLetra = u"NPQRSW";
constexpr QStringView kEntidadesConCualquiera = u"CDFGJUV";

int ValorDe(QChar digito) { return digito.unicode() - u'0'; }

bool SonDigitos(QStringView texto) { return std::ranges::all_of(texto, EsDigito); }

int Numero(QStringView digitos) {
    int numero = 0;
    for (const QChar c : digitos) {
        numero = numero * 10 + ValorDe(c);
    }
    return numero;
}

bool LetraDePersona(int numero, QChar letra) {
    return letra == kLetrasDePersona.at(numero % kLetrasDePersona.size());
}

bool ControlDeEntidad(QChar clase, QStringView digitos, QChar control) {
    int suma = 0;
    for (qsizetype i = 0; i < digitos.size(); ++i) {
        const int digito = ValorDe(digitos.at(i));
        const int doble = 2 * digito;
        suma += i % 2 == 0 ? doble / 10 + doble % 10 : digito;
    }
    const int valor = (10 - suma % 10) % 10;
    const bool comoDigito = EsDigito(control) && ValorDe(control) == valor;
    const bool comoLetra = control == kLetrasDeEntidad.at(valor);
    if (kEntidadesConCualquiera.contains(clase)) {
        return comoDigito || comoLetra;
    }
    return kEntidadesConDigito.contains(clase) ? comoDigito : comoLetra;
}

bool EsEntidad(QChar clase) {
    return kEntidadesConDigito.contains(clase) || kEntidadesConLetra.contains(clase) ||
           kEntidadesConCualquiera.contains(clase);
}

}  // namespace

QString cMiscelaneos::HaciendaFiscalidad() const {
    return LeerDatoGeneral(mdblec, idioma == 0 ? kDepartamentoCas : kDepartamentoEus);
}

void cMiscelaneos::AccesoAyuOnline() const {
    QUrl direccion(LeerDatoGeneral(mdblec, kURLAsistencia));
    QUrlQuery consulta(direccion);
    consulta.addQueryItem(u"idioma"_s, idioma == 0 ? u"c"_s : u"e"_s);
    direccion.setQuery(consulta);
    Asistencia().AbrirDireccion(direccion.toString(QUrl::FullyEncoded));
}

void cMiscelaneos::MostrarOnlineInfo() const {
    const QString direccion = LeerDatoGeneral(mdblec, idioma == 0 ? kURLInfoCas : kURLInfoEus);
    Asistencia().MostrarInfo(idioma, direccion, Parent);
}

bool cMiscelaneos::ValidaNifCif(const QString& nif) const {
    const QStringView texto(nif);
    if (texto.size() != kLargo || !SonDigitos(texto.sliced(1, kLargo - 2))) {
        return false;
    }
    const QChar primero = texto.front();
    const QChar control = texto.back();
    const QStringView centro = texto.sliced(1, kLargo - 2);
    if (EsDigito(primero)) {
        return LetraDePersona(Numero(texto.chopped(1)), control);
    }
    if (kEspeciales.contains(primero)) {
        return LetraDePersona(Numero(centro), control);
    }
    if (kExtranjeros.contains(primero)) {
        const auto cifra = static_cast<int>(kExtranjeros.indexOf(primero));
        return LetraDePersona(cifra * 10'000'000 + Numero(centro), control);
    }
    return EsEntidad(primero) && ControlDeEntidad(primero, centro, control);
}

}  // namespace SvrKLComunLib
