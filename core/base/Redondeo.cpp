#include "core/base/Redondeo.h"

#include <cmath>

namespace {

constexpr qint16 kDecimalesMaximos = 6;

}  // namespace

double RedondearEntero(double valor) {
    const double absoluto = std::fabs(valor);
    const double entero = std::floor(absoluto);
    const double resultado = absoluto - entero >= 0.5 ? entero + 1.0 : entero;
    return valor < 0.0 ? -resultado : resultado;
}

double Redondear(double valor, qint16 decimales) {
    if (decimales > kDecimalesMaximos) {
        return valor;
    }
    const double p = std::pow(10.0, decimales);
    const double signo = valor >= 0.0 ? 1.0 : -1.0;
    const double entero = std::floor(std::fabs(valor)) * signo;
    const double fraccion = RedondearEntero(std::fabs(valor - entero) * p);
    return entero + signo * fraccion / p;
}
