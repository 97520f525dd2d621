#pragma once

#include <QPushButton>

/// A push button with the manners of all forms: Enter and Space press it when it has the focus, no button is
/// a default one, and an access key moves the focus to it before it is pressed, so that the leaving rule of
/// the box before it has run.
class BotonZT : public QPushButton {
    Q_OBJECT
  public:
    explicit BotonZT(QWidget* padre = nullptr);

  protected:
    bool event(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
};
