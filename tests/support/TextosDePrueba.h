#pragma once

#include <QString>
#include <vector>

#include "tests/support/Propiedades.h"

// Texts that can be typed into the boxes of the entry forms, for properties.

/// Texts of the characters that boxes accept, without blanks at the ends, which the comparison of the boxes
/// does not count.
inline rc::Gen<QString> TextoAceptado(qsizetype minimo, qsizetype maximo) {
    static const QString aceptados =
        QStringLiteral("0123456789ABCDEFGHIJKLMNÑOPQRSTUVWXYZ !$%&()*+,-./:;<=>?\\_ºª¿¡Ç");
    const auto letra = rc::gen::map(rc::gen::inRange<qsizetype>(0, aceptados.size()),
                                    [](qsizetype i) { return aceptados.at(i); });
    const auto texto =
        rc::gen::map(rc::gen::container<std::vector<QChar>>(letra), [=](const std::vector<QChar>& letras) {
            return QString(letras.data(), static_cast<qsizetype>(letras.size())).left(maximo).trimmed();
        });
    return rc::gen::suchThat(texto, [=](const QString& t) { return t.size() >= minimo; });
}

inline rc::Gen<QString> NumeroEnTexto(int minimo, int maximo) {
    return rc::gen::map(rc::gen::inRange(minimo, maximo + 1), [](int n) { return QString::number(n); });
}
