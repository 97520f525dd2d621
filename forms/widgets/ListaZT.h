#pragma once

#include <QSize>
#include <QStringList>
#include <QTreeView>
#include <span>

#include "core/run/IdDeTexto.h"

class ModeloLista;

/// The list view of all forms, the control behind the names that begin with "lsv".
///
/// Items count from 1; each has a key, a text and sub-items, which count from 1 too. Columns count from 1:
/// column 1 shows the text, column k + 1 the sub-item k. A list with no columns declared shows the texts in
/// one that fills its width. The header is hidden unless the form shows it. One whole row is selected at a
/// time, cells are not edited, typed letters look for an item. An item number or column outside the list
/// raises 9.
///
/// The selected item and the mark that shows it are two things: the selected item of a filled list that
/// nobody has touched is its first row, and that row is not marked.
class ListaZT : public QTreeView {
    Q_OBJECT
  public:
    /// Starting width in twips of a column that is given none.
    static constexpr int kAnchoDeColumna = 1440;

    /// Characters of keys, as `KeyPress` tells them.
    static constexpr int kRetroceso = 8;
    static constexpr int kIntro = 13;
    static constexpr int kEscape = 27;
    static constexpr int kEspacio = 32;

    /// A column whose text, which is also its key, stands in the table of texts.
    struct Columna {
        Id texto;
        int anchoTwips = kAnchoDeColumna;
        Qt::AlignmentFlag alineacion = Qt::AlignLeading;
    };

    explicit ListaZT(QWidget* padre = nullptr);

    /// Takes all items away; columns and order stay.
    void Limpiar();
    /// Takes all columns away; the items stay.
    void LimpiarColumnas();
    /// Adds a column at the right. `anchoTwips` is the starting width, scaled with resolution and type size
    /// of the screen; a hidden column holds its texts all the same.
    void AnadirColumna(const QString& clave, const QString& texto, int anchoTwips = kAnchoDeColumna,
                       bool oculta = false, Qt::Alignment alineacion = Qt::AlignLeading);
    /// Adds the hidden column "Clave" for the key of a record and then these, in the language in force.
    void PonerColumnas(std::span<const Columna> columnas);
    [[nodiscard]] int CuentaColumnas() const;
    [[nodiscard]] QString ClaveColumna(int columna) const;
    /// Width of a column as it stands, in pixels; 0 for a hidden one.
    [[nodiscard]] int AnchoColumna(int columna) const;
    /// Sum of the widths of the columns, in pixels.
    [[nodiscard]] int AnchoColumnas() const;

    /// Adds an item and gives its number: the last one or, in an ordered list, that of its place. Raises
    /// 35602 for a key that another item has; the empty key can repeat.
    int Anadir(const QString& clave, const QString& texto, const QStringList& subitems = {});
    void Quitar(int i);
    [[nodiscard]] int Cuenta() const;
    [[nodiscard]] QString Clave(int i) const;
    [[nodiscard]] QString Texto(int i) const;
    /// Empty where the item has no sub-item of that number.
    [[nodiscard]] QString Subitem(int i, int k) const;
    void PonerSubitem(int i, int k, const QString& texto);
    /// Number of the first item with that key; 0 when there is none.
    [[nodiscard]] int Buscar(const QString& clave) const;
    /// Number of the first item with that text; 0 when there is none.
    [[nodiscard]] int BuscarTexto(const QString& texto) const;

    /// Number of the selected item, marked or not. Raises 91 when the list is empty.
    [[nodiscard]] int Seleccionado() const;
    /// The number that the text of the selected item is: the key of its record. Raises 91 when the list is
    /// empty, 13 for a text that is no number.
    [[nodiscard]] qint32 ClaveElegida() const;
    /// Makes an item the selected one and marks it.
    void Seleccionar(int i);
    [[nodiscard]] bool Marcado(int i) const;
    /// Marks an item; in a list of single selection it alone.
    void Marcar(int i);
    /// Scrolls just as far as it takes to show the item.
    void AsegurarVisible(int i);

    /// Keeps the items in ascending order by the rules of Spanish, equals in the order in which they came;
    /// switched off, they stay where they are.
    void Ordenado(bool ordenado);
    [[nodiscard]] bool Ordenado() const;
    /// What to order by: 0 the text, k the sub-item k.
    void ClaveOrden(int k);
    [[nodiscard]] int ClaveOrden() const;

    /// Size at which a pick list shows all columns and up to eight items whole.
    [[nodiscard]] QSize TamanoDesplegada() const;

    void keyboardSearch(const QString& texto) override;

  Q_SIGNALS:
    /// The left button was released over an item, the selection having moved.
    void Click();
    /// Comes after the `Click` of its first half.
    void DblClick();
    /// A key with a character, Enter, Escape or the backspace, before the list acts on it. The receiver can
    /// change the character, or set 0 so that the list does nothing.
    void KeyPress(int& keyAscii);
    /// A key (Qt::Key) was released, the list having acted on it; not sent while a held key repeats.
    void KeyUp(int key);

  protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void keyReleaseEvent(QKeyEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

  private:
    [[nodiscard]] QModelIndex IndiceDe(int i) const;
    [[nodiscard]] int PrimeraColumnaVisible() const;

    ModeloLista* m_modelo;
    bool m_pulsada = false;
};
