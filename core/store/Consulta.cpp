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

void Consulta::Poner(int indice, TipoDeColumna tipo, const Valor& valor) {
    switch (tipo) {
        case TipoDeColumna::Entero16:
            return Poner(indice, valor.aEntero16());
        case TipoDeColumna::Entero32:
            return Poner(indice, valor.aEntero32());
        case TipoDeColumna::Doble:
            return Poner(indice, valor.aDoble());
        case TipoDeColumna::Texto:
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

Valor Consulta::Leer(int columna, TipoDeColumna tipo) const {
    switch (tipo) {
        case TipoDeColumna::Entero16:
            return Entero16(columna);
        case TipoDeColumna::Entero32:
            return Entero32(columna);
        case TipoDeColumna::Doble:
            return Doble(columna);
        case TipoDeColumna::Texto:
            return Texto(columna);
    }
    return {};
}

Tabla LeerLista(Consulta& consulta, ColumnasDeAlmacen columnas) {
    Tabla lista;
    for (int fila = 1; consulta.Siguiente(); ++fila) {
        if (fila == 1) {
            lista = Tabla(static_cast<int>(columnas.size()) - 1, 1);
        } else {
            lista.RedimensionarFilas(fila);
        }
        for (const ColumnaDeAlmacen& columna : columnas) {
            lista(columna.lugar, fila) = consulta.Leer(columna.lugar, columna.tipo);
        }
    }
    return lista;
}

Valor EnBlanco(TipoDeColumna tipo) {
    switch (tipo) {
        case TipoDeColumna::Entero16:
            return qint16{0};
        case TipoDeColumna::Entero32:
            return qint32{0};
        case TipoDeColumna::Doble:
            return 0.0;
        case TipoDeColumna::Texto:
            return QString();
    }
    return {};
}

Registro LeerRegistro(Consulta& consulta, ColumnasDeAlmacen columnas) {
    const bool hay = consulta.Siguiente();
    Registro registro;
    registro.reserve(columnas.size());
    for (const ColumnaDeAlmacen& columna : columnas) {
        registro.push_back(hay ? consulta.Leer(columna.lugar, columna.tipo) : EnBlanco(columna.tipo));
    }
    return registro;
}
