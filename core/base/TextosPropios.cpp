#include "core/base/TextosPropios.h"

#include "core/base/ErrorZT.h"

using namespace Qt::StringLiterals;

QString TextoPropio(QStringView clave) { return TextoPropioDe(clave, IdiomaEnVigor()); }

QString TextoPropioDe(QStringView clave, qint16 offset) {
    const std::optional<QString> texto = TextoPropioSiHay(clave.toString(), offset);
    if (!texto) {
        throw ErrorZT(NumError::TextoInexistente,
                      TextoDeError(NumError::TextoInexistente) + u" '%1'"_s.arg(clave));
    }
    return *texto;
}
