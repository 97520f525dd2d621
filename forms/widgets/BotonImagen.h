#pragma once

#include <QToolButton>

/// A picture that can be pressed: the twin `picX` of a button `cmdX`, or the arrow that opens a pick list.
///
/// A click takes the focus first. Twins are no stop of the Tab key. Where the rules give a picture keys, its
/// form's description makes it one (strong focus), and Enter and Space press it.
class BotonImagen : public QToolButton {
    Q_OBJECT
  public:
    explicit BotonImagen(QWidget* padre = nullptr);

  protected:
    void keyPressEvent(QKeyEvent* evento) override;
};
