#pragma once

#include <QLabel>

/// A label for the path of a file: one that is too long for it is cut in the middle, where a path says least.
/// `text()` is the whole path.
class EtiquetaDeRuta : public QLabel {
    Q_OBJECT
  public:
    explicit EtiquetaDeRuta(QWidget* padre = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;

  Q_SIGNALS:
    /// The mouse moved over the label.
    void MouseMove();

  protected:
    void mouseMoveEvent(QMouseEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
};
