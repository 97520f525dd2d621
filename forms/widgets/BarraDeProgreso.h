#pragma once

#include <QElapsedTimer>
#include <QFrame>

/// The bar of long work: a ground, in the forms `shpFondo`, and over it the part that is done, `shpBarra`,
/// whose width grows from 0 to that of the ground. Its accessible description is the part done, in percent.
class BarraDeProgreso : public QFrame {
    Q_OBJECT
  public:
    explicit BarraDeProgreso(QWidget* padre = nullptr);

    /// Shows the bar, empty.
    void Empezar();
    /// Gives the bar `hechos` parts out of `total` of the ground's width. Where that shows, and at least ten
    /// times a second, the windows of the program repaint; input is dropped (see `SinEntrada`).
    void Avanzar(int hechos, int total);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* evento) override;

  private:
    /// Gives the bar its width and its place. True when it has changed.
    bool Colocar();
    /// Tells screen readers how much is done and lets the windows repaint.
    void Repasar();

    QWidget* m_barra;
    QElapsedTimer m_desdeElRepaso;
    int m_hechos = 0;
    int m_total = 1;
};
