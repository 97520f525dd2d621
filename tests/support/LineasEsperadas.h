#pragma once

#include <QStringList>
#include <vector>

#include "core/run/ListaDeErrores.h"
#include "core/run/Textos.h"

/// The numbered lines that a list of faults shows for texts of these ids, in this order, in the language of
/// `offset`.
inline QStringList LineasEsperadas(const std::vector<int>& textos, int offset) {
    QStringList lineas;
    int numero = 0;
    for (const int texto : textos) {
        QStringList cortadas = CortarEnLineas(TextoDeFila(texto + offset));
        cortadas.first().prepend(QStringLiteral("%1- ").arg(++numero));
        lineas += cortadas;
    }
    return lineas;
}
