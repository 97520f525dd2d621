#pragma once

#include <QAbstractButton>

/// An underlined label that works as a link: reached by Tab, worked by click, Enter and Space.
class EtiquetaEnlace : public QAbstractButton {
    Q_OBJECT
  public:
    explicit EtiquetaEnlace(QWidget* padre = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void paintEvent(QPaintEvent* evento) override;
};
