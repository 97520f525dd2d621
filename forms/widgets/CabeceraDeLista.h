#pragma once

#include <QList>
#include <QWidget>

class ListaZT;

/// The strip over a list on which the headings of its columns are placed as labels. In the layout of its form
/// it stands right above the list, at the same left edge; the list's own header is hidden.
class CabeceraDeLista : public QWidget {
    Q_OBJECT
  public:
    using QWidget::QWidget;

    /// Gives the labels, from the left, the widths of the columns of `lista` from its second one on (the
    /// first holds the key and is hidden), and keeps them so. `picOrden` is the picture of the order, if the
    /// list has one: it stays at the middle of the strip's height, and clicks go through it to the label
    /// below.
    void Colocar(const ListaZT& lista, const QList<QWidget*>& etiquetas, QWidget* picOrden = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;

  private:
    void Recolocar();

    const ListaZT* m_lista = nullptr;
    QList<QWidget*> m_etiquetas;
    QWidget* m_picOrden = nullptr;
};
