#include "forms/widgets/ModeloLista.h"

#include <QLocale>
#include <algorithm>

#include "core/base/ErrorZT.h"

namespace {

/// Element `indice` of a sequence. Raises 9 outside the bounds.
template <class Secuencia>
auto& Exigir(Secuencia& secuencia, int indice) {
    if (indice < 0 || static_cast<std::size_t>(indice) >= std::size(secuencia)) {
        throw ErrorZT(NumError::Subindice);
    }
    return secuencia[static_cast<std::size_t>(indice)];
}

}  // namespace

ModeloLista::ModeloLista(QObject* padre)
    : QAbstractTableModel(padre), m_comparador(QLocale(QLocale::Spanish, QLocale::Spain)) {
    m_comparador.setCaseSensitivity(Qt::CaseInsensitive);
}

int ModeloLista::rowCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : static_cast<int>(m_elementos.size());
}

int ModeloLista::columnCount(const QModelIndex& padre) const {
    return padre.isValid() ? 0 : std::max(1, static_cast<int>(m_columnas.size()));
}

QVariant ModeloLista::data(const QModelIndex& indice, int papel) const {
    if (!indice.isValid()) {
        return {};
    }
    if (papel == Qt::DisplayRole) {
        return Celda(indice.row(), indice.column());
    }
    if (papel == Qt::TextAlignmentRole && HayColumnas()) {
        return QVariant::fromValue(Exigir(m_columnas, indice.column()).alineacion | Qt::AlignVCenter);
    }
    return {};
}

QVariant ModeloLista::headerData(int seccion, Qt::Orientation orientacion, int papel) const {
    if (orientacion != Qt::Horizontal || !HayColumnas()) {
        return {};
    }
    const Columna& columna = Exigir(m_columnas, seccion);
    if (papel == Qt::DisplayRole) {
        return columna.texto;
    }
    return papel == Qt::TextAlignmentRole ? QVariant::fromValue(columna.alineacion | Qt::AlignVCenter)
                                          : QVariant();
}

void ModeloLista::AnadirColumna(const QString& clave, const QString& texto, Qt::Alignment alineacion) {
    if (!HayColumnas()) {
        m_columnas.push_back({clave, texto, alineacion});
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, 0);
        return;
    }
    const int nueva = columnCount();
    beginInsertColumns({}, nueva, nueva);
    m_columnas.push_back({clave, texto, alineacion});
    endInsertColumns();
}

void ModeloLista::VaciarColumnas() {
    if (columnCount() == 1) {
        m_columnas.clear();
        Q_EMIT headerDataChanged(Qt::Horizontal, 0, 0);
        return;
    }
    beginRemoveColumns({}, 1, columnCount() - 1);
    m_columnas.clear();
    endRemoveColumns();
}

const QString& ModeloLista::ClaveColumna(int columna) const { return Exigir(m_columnas, columna).clave; }

int ModeloLista::Anadir(const QString& clave, const QStringList& celdas) {
    if (m_claves.contains(clave)) {
        throw ErrorZT(NumError::ClaveRepetida);
    }
    const int fila = m_ordenado ? LugarDe(celdas.value(m_claveOrden)) : rowCount();
    beginInsertRows({}, fila, fila);
    m_elementos.insert(m_elementos.begin() + fila, {clave, celdas});
    if (!clave.isEmpty()) {
        m_claves.insert(clave);
    }
    endInsertRows();
    return fila;
}

void ModeloLista::Quitar(int fila) {
    const QString clave = Clave(fila);
    beginRemoveRows({}, fila, fila);
    m_elementos.erase(m_elementos.begin() + fila);
    m_claves.remove(clave);
    endRemoveRows();
}

void ModeloLista::Vaciar() {
    beginResetModel();
    m_elementos.clear();
    m_claves.clear();
    endResetModel();
}

const QString& ModeloLista::Clave(int fila) const { return Exigir(m_elementos, fila).clave; }

QString ModeloLista::Celda(int fila, int columna) const {
    return Exigir(m_elementos, fila).celdas.value(columna);
}

void ModeloLista::PonerCelda(int fila, int columna, const QString& texto) {
    QStringList& celdas = Exigir(m_elementos, fila).celdas;
    if (columna < 0) {
        throw ErrorZT(NumError::Subindice);
    }
    if (columna >= celdas.size()) {
        celdas.resize(columna + 1);
    }
    celdas[columna] = texto;
    const QModelIndex celda = index(fila, columna);
    if (celda.isValid()) {
        Q_EMIT dataChanged(celda, celda, {Qt::DisplayRole});
    }
    if (m_ordenado && columna == m_claveOrden) {
        Ordenar();
    }
}

int ModeloLista::Buscar(const QString& clave) const {
    const auto encontrado = std::ranges::find(m_elementos, clave, &Elemento::clave);
    return encontrado == m_elementos.end() ? -1 : static_cast<int>(encontrado - m_elementos.begin());
}

void ModeloLista::Ordenado(bool ordenado) {
    if (ordenado && !m_ordenado) {
        Ordenar();
    }
    m_ordenado = ordenado;
}

void ModeloLista::ClaveOrden(int columna) {
    if (columna < 0) {
        throw ErrorZT(NumError::Subindice);
    }
    const bool otra = columna != m_claveOrden;
    m_claveOrden = columna;
    if (m_ordenado && otra) {
        Ordenar();
    }
}

std::vector<int> ModeloLista::FilasEnOrden() const {
    // Sort keys make a comparison cheap and are far larger than the texts: they live only while sorting.
    struct Candidato {
        QCollatorSortKey clave;
        int fila;
    };
    std::vector<Candidato> candidatos;
    candidatos.reserve(m_elementos.size());
    for (const Elemento& elemento : m_elementos) {
        candidatos.push_back(
            {m_comparador.sortKey(elemento.celdas.value(m_claveOrden)), static_cast<int>(candidatos.size())});
    }
    std::ranges::stable_sort(candidatos,
                             [](const Candidato& a, const Candidato& b) { return a.clave < b.clave; });
    std::vector<int> filas;
    filas.reserve(candidatos.size());
    std::ranges::transform(candidatos, std::back_inserter(filas), &Candidato::fila);
    return filas;
}

void ModeloLista::Ordenar() {
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<int> antes = FilasEnOrden();
    std::vector<Elemento> enOrden;
    enOrden.reserve(antes.size());
    std::vector<int> ahora(antes.size());
    for (const int fila : antes) {
        ahora[static_cast<std::size_t>(fila)] = static_cast<int>(enOrden.size());
        enOrden.push_back(std::move(m_elementos[static_cast<std::size_t>(fila)]));
    }
    m_elementos = std::move(enOrden);

    const QModelIndexList viejos = persistentIndexList();
    QModelIndexList nuevos;
    nuevos.reserve(viejos.size());
    for (const QModelIndex& viejo : viejos) {
        nuevos += index(ahora[static_cast<std::size_t>(viejo.row())], viejo.column());
    }
    changePersistentIndexList(viejos, nuevos);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

int ModeloLista::LugarDe(const QString& texto) const {
    const auto lugar = std::ranges::upper_bound(
        m_elementos, texto,
        [this](const QString& a, const QString& b) { return m_comparador.compare(a, b) < 0; },
        [this](const Elemento& elemento) { return elemento.celdas.value(m_claveOrden); });
    return static_cast<int>(lugar - m_elementos.begin());
}
