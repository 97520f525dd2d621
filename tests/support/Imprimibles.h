#pragma once

#include <gtest/gtest.h>

#include <QString>
#include <ostream>

#include "core/base/ErrorZT.h"
#include "core/base/Valor.h"

// What GoogleTest prints when an expectation fails, and how tests expect failures.

inline void PrintTo(const QString& texto, std::ostream* salida) {
    *salida << '"' << texto.toUtf8().constData() << '"';
}

/// Whether the value is a 64-bit float: it is the same value after it has been made one.
inline bool EsDoble(const Valor& valor) {
    return valor.EsNumerico() && !valor.EsTexto() && valor == Valor(valor.aDoble());
}

inline void PrintTo(const Valor& valor, std::ostream* salida) {
    if (valor.EsVacio() || valor.EsNulo()) {
        *salida << (valor.EsVacio() ? "Empty" : "Null");
        return;
    }
    *salida << (valor.EsTexto()  ? "text "
                : EsDoble(valor) ? "double "
                                 : "value ")
            << valor.aTexto().toUtf8().constData();
}

/// Runs `cuerpo` and gives the number of the failure that it raised, 0 when it raised none.
template <class F>
int NumeroDelError(F&& cuerpo) {
    try {
        cuerpo();
    } catch (const ErrorZT& error) {
        return error.Numero();
    }
    return 0;
}

/// The same for the description; empty when nothing was raised.
template <class F>
QString DescripcionDelError(F&& cuerpo) {
    try {
        cuerpo();
    } catch (const ErrorZT& error) {
        return error.Descripcion();
    }
    return {};
}
