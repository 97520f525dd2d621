#pragma once

#include <rapidcheck.h>

#include <QString>

// Generators of data for properties.

/// Texts of up to `largo` characters out of those that the entry forms let through.
inline rc::Gen<QString> TextoEnMayusculas(std::size_t largo) {
    const std::u16string letras = u"0123456789ABCDEFGHIJKLMNÑOPQRSTUVWXYZ !$%&()*+,-./:;<=>?\\_ºª¿¡Ç";
    return rc::gen::exec([=] {
        QString texto;
        for (auto n = *rc::gen::inRange<std::size_t>(0, largo + 1); n > 0; --n) {
            texto += QChar(*rc::gen::elementOf(letras));
        }
        return texto;
    });
}
