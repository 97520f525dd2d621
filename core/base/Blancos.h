#pragma once

#include <QString>

/// `texto` without the blanks (U+0020) at its right end, the padding of fields of fixed width. Other spaces,
/// such as the no-break one, belong to the text.
inline QString SinBlancosALaDerecha(const QString& texto) {
    qsizetype largo = texto.size();
    while (largo > 0 && texto.at(largo - 1) == u' ') {
        --largo;
    }
    return texto.left(largo);
}
