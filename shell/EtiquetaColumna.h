#pragma once

#include <QAbstractButton>

/// The heading of a column, drawn as a label over a list in the look of the platform's list headings.
///
/// One that is `Pulsable` is reached by Tab and worked by click, Enter and Space; any other only tells what
/// stands below it.
class EtiquetaColumna : public QAbstractButton {
    Q_OBJECT
    Q_PROPERTY(bool Pulsable READ Pulsable WRITE setPulsable)
  public:
    explicit EtiquetaColumna(QWidget* padre = nullptr);

    [[nodiscard]] bool Pulsable() const { return m_pulsable; }
    void setPulsable(bool pulsable);

    [[nodiscard]] QSize sizeHint() const override;

  protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;

  private:
    [[nodiscard]] class QStyleOptionHeader Opcion() const;

    bool m_pulsable = false;
};
