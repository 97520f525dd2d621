#include "core/exchange/RegistroDeIntercambio.h"

#include "core/base/ErrorZT.h"
#include "core/base/Formatos.h"
#include "core/run/Textos.h"

using namespace Qt::StringLiterals;

namespace {

/// What is left of a text that is longer than its field, whatever the width of the field: docs/reglas.md,
/// recorte-a-veinte.
constexpr qsizetype kCorte = 20;

constexpr bool SinHuecos() {
    int siguiente = 1;
    for (const CampoDeIntercambio& campo : kCamposDeIntercambio) {
        if (campo.posicion != siguiente) {
            return false;
        }
        siguiente += campo.ancho;
    }
    return true;
}
static_assert(SinHuecos());
static_assert(kLargoDeRegistro == 140);
// The fields of a declarant behind his key. The layout is fixed: one that is added does not travel in it.
static_assert(kCamposDeIntercambio.size() < svrZELT::CamposDeDeclarante::kColumnas.size());

QString Rellenar(const CampoDeIntercambio& campo, const Valor& valor) {
    return campo.clase == ClaseDeCampo::Texto ? RellenarTexto(valor.aTexto(), campo.ancho, u' ')
                                              : RellenarNumero(valor, campo.ancho, u'0');
}

/// A text of static storage, not copied.
QString SinCopia(QStringView texto) { return QString::fromRawData(texto.data(), texto.size()); }

}  // namespace

QString RellenarTexto(const QString& valor, int ancho, QChar relleno) {
    const QString cabe = valor.size() > ancho ? valor.left(kCorte) : valor;
    if (cabe.size() > ancho) {
        throw ErrorZT(NumError::LlamadaNoValida,
                      TextoDeError(NumError::LlamadaNoValida) + u": "_s +
                          TextoPropio(u"intercambio_no_cabe").arg(valor, QString::number(ancho)));
    }
    return cabe.leftJustified(ancho, relleno);
}

QString RellenarNumero(const Valor& valor, int ancho, QChar relleno) {
    return Formatear(Valor(valor.aEntero32()), QString(ancho, relleno));
}

QString LineaDeDeclarante(const Registro& declarante) {
    QString linea;
    linea.reserve(kLargoDeRegistro);
    int elemento = svrZELT::CamposDeDeclarante::kNIF;
    for (const CampoDeIntercambio& campo : kCamposDeIntercambio) {
        linea += Rellenar(campo, Elemento(declarante, elemento++));
    }
    return linea;
}

Tabla TrocearRegistro(QStringView linea) {
    Tabla registro(kColumnaNombre, kUltimaFilaDeRegistro);
    int fila = kFilaNif;
    for (const CampoDeIntercambio& campo : kCamposDeIntercambio) {
        registro(kColumnaValor, fila) = linea.mid(campo.posicion - 1, campo.ancho).toString();
        registro(kColumnaNombre, fila) = SinCopia(campo.nombre);
        ++fila;
    }
    return registro;
}
