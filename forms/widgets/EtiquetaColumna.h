#pragma once

#include <QAbstractButton>

/// The heading of a column, drawn as a label over a list in the look of the platform's list headings.
///
/// One that is `Pulsable` is reached by Tab and worked by click, Enter and Space; any other only tells what
/// stands below it.
class EtiquetaColumna : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(bool Pulsable READ Pulsable WRITE setPulsable)
    Q_PROPERTY(Qt::Alignment Alineacion READ Alineacion WRITE setAlineacion)
  public:
    explicit EtiquetaColumna(QWidget* padre = nullptr);

    [[nodiscard]] bool Pulsable() const { return m_pulsable; }
    void setPulsable(bool pulsable);

    /// Where the text stands in the label: as the contents of the column below it.
    [[nodiscard]] Qt::Alignment Alineacion() const { return m_alineacion; }
    void setAlineacion(Qt::Alignment alineacion);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;

  private:
    [[nodiscard]] class QStyleOptionHeader Opcion() const;

    bool m_pulsable = false;
    Qt::Alignment m_alineacion = Qt::AlignLeading | Qt::AlignVCenter;
};
