#include "core/base/Tabla.h"

#include "core/base/ErrorZT.h"

Tabla::Tabla(int ultimaColumna, int ultimaFila) : m_columnas(ultimaColumna + 1), m_filas(ultimaFila + 1) {
    if (ultimaColumna < 0 || ultimaFila < 0) {
        throw ErrorZT(NumError::Subindice);
    }
    m_datos.resize(static_cast<std::size_t>(m_columnas) * static_cast<std::size_t>(m_filas));
}

void Tabla::ExigirNoNula() const {
    if (EsNula()) {
        throw ErrorZT(NumError::NoCoincidenTipos);
    }
}

int Tabla::UltimaColumna() const {
    ExigirNoNula();
    return m_columnas - 1;
}

int Tabla::UltimaFila() const {
    ExigirNoNula();
    return m_filas - 1;
}

std::size_t Tabla::Lugar(int columna, int fila) const {
    ExigirNoNula();
    if (columna < 0 || columna >= m_columnas || fila < 0 || fila >= m_filas) {
        throw ErrorZT(NumError::Subindice);
    }
    return static_cast<std::size_t>(fila) * static_cast<std::size_t>(m_columnas) +
           static_cast<std::size_t>(columna);
}

void Tabla::RedimensionarFilas(int ultimaFila) {
    ExigirNoNula();
    if (ultimaFila < 0) {
        throw ErrorZT(NumError::Subindice);
    }
    m_filas = ultimaFila + 1;
    m_datos.resize(static_cast<std::size_t>(m_columnas) * static_cast<std::size_t>(m_filas));
}

const Valor& Elemento(const Registro& registro, int indice) {
    if (indice < 0 || static_cast<std::size_t>(indice) >= registro.size()) {
        throw ErrorZT(NumError::Subindice);
    }
    return registro[static_cast<std::size_t>(indice)];
}
