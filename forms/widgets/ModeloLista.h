#pragma once

#include <QAbstractTableModel>
#include <QCollator>
#include <QSet>
#include <QStringList>
#include <vector>

/// The flat table behind a list view: items with a key, a text (column 0) and sub-items (columns 1 and on).
///
/// Items and columns are told here by the row and column of the model, from 0; `ListaZT` counts from 1. With
/// no column declared there is one, that of the texts. While `Ordenado()`, the items stand in the ascending
/// order of one column by the rules of Spanish (Ñ after N, capitals like small letters), equals in the order
/// in which they came.
class ModeloLista : public QAbstractTableModel {
    Q_OBJECT
  public:
    explicit ModeloLista(QObject* padre = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& indice, int papel) const override;
    [[nodiscard]] QVariant headerData(int seccion, Qt::Orientation orientacion, int papel) const override;

    void AnadirColumna(const QString& clave, const QString& texto, Qt::Alignment alineacion);
    void VaciarColumnas();
    [[nodiscard]] bool HayColumnas() const { return !m_columnas.empty(); }
    [[nodiscard]] const QString& ClaveColumna(int columna) const;

    /// Adds an item, at the end or at its place in the order, and gives its row. Raises 35602 for a key that
    /// another item has; the empty key can repeat.
    int Anadir(const QString& clave, const QStringList& celdas);
    void Quitar(int fila);
    void Vaciar();

    [[nodiscard]] const QString& Clave(int fila) const;
    /// Text of a cell; empty where the item has no such sub-item.
    [[nodiscard]] QString Celda(int fila, int columna) const;
    /// Changes a cell. In an ordered list a change in the column of the order moves the item to its place.
    void PonerCelda(int fila, int columna, const QString& texto);
    /// Row of the first item with that key, -1 when there is none.
    [[nodiscard]] int Buscar(const QString& clave) const;

    /// Switching the order off leaves the items where they are.
    void Ordenado(bool ordenado);
    [[nodiscard]] bool Ordenado() const { return m_ordenado; }
    void ClaveOrden(int columna);
    [[nodiscard]] int ClaveOrden() const { return m_claveOrden; }

  private:
    struct Columna {
        QString clave;
        QString texto;
        Qt::Alignment alineacion;
    };
    struct Elemento {
        QString clave;
        QStringList celdas;
    };

    void Ordenar();
    [[nodiscard]] std::vector<int> FilasEnOrden() const;
    [[nodiscard]] int LugarDe(const QString& texto) const;

    std::vector<Columna> m_columnas;
    std::vector<Elemento> m_elementos;
    QSet<QString> m_claves;
    QCollator m_comparador;
    int m_claveOrden = 0;
    bool m_ordenado = false;
};
