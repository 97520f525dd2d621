#include "core/store/Consulta.h"

#include <limits>

namespace {

template <class T>
T EnIntervalo(qint64 valor) {
    if (valor < std::numeric_limits<T>::min() || valor > std::numeric_limits<T>::max()) {
        throw ErrorZT(NumError::Desbordamiento);
    }
    return static_cast<T>(valor);
}

}  // namespace

Consulta::~Consulta() {
    m_orden->tryReset();
    m_almacen.Devolver(m_sql, std::move(m_orden));
}

void Consulta::Poner(int indice, const QString& valor) { m_orden->bind(indice, valor.toStdString()); }

void Consulta::Poner(int indice, Campo campo, const Valor& valor) {
    switch (campo) {
        case Campo::Entero16:
            return Poner(indice, valor.aEntero16());
        case Campo::Entero32:
            return Poner(indice, valor.aEntero32());
        case Campo::Doble:
            return Poner(indice, valor.aDoble());
        case Campo::Texto:
            return Poner(indice, valor.aTexto());
    }
}

int Consulta::Ejecutar() {
    const int filas = m_orden->exec();
    m_orden->reset();
    return filas;
}

qint16 Consulta::Entero16(int columna) const {
    return EnIntervalo<qint16>(m_orden->getColumn(columna).getInt64());
}

qint32 Consulta::Entero32(int columna) const {
    return EnIntervalo<qint32>(m_orden->getColumn(columna).getInt64());
}

double Consulta::Doble(int columna) const { return m_orden->getColumn(columna).getDouble(); }

QString Consulta::Texto(int columna) const {
    const SQLite::Column celda = m_orden->getColumn(columna);
    const char* texto = celda.getText();
    return QString::fromUtf8(texto, celda.getBytes());
}

Valor Consulta::Leer(int columna, Campo campo) const {
    switch (campo) {
        case Campo::Entero16:
            return Entero16(columna);
        case Campo::Entero32:
            return Entero32(columna);
        case Campo::Doble:
            return Doble(columna);
        case Campo::Texto:
            return Texto(columna);
    }
    return {};
}

Tabla LeerLista(Consulta& consulta, std::initializer_list<Campo> campos) {
    Tabla lista;
    for (int fila = 1; consulta.Siguiente(); ++fila) {
        if (fila == 1) {
            lista = Tabla(static_cast<int>(campos.size()) - 1, 1);
        } else {
            lista.RedimensionarFilas(fila);
        }
        int columna = 0;
        for (const Campo campo : campos) {
            lista(columna, fila) = consulta.Leer(columna, campo);
            ++columna;
        }
    }
    return lista;
}

Valor EnBlanco(Campo campo) {
    switch (campo) {
        case Campo::Entero16:
            return qint16{0};
        case Campo::Entero32:
            return qint32{0};
        case Campo::Doble:
            return 0.0;
        case Campo::Texto:
            return QString();
    }
    return {};
}

Registro LeerRegistro(Consulta& consulta, std::span<const Campo> campos) {
    const bool hay = consulta.Siguiente();
    Registro registro;
    registro.reserve(campos.size());
    for (const Campo campo : campos) {
        registro.push_back(hay ? consulta.Leer(static_cast<int>(registro.size()), campo) : EnBlanco(campo));
    }
    return registro;
}
