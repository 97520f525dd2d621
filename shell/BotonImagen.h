#pragma once

#include <QToolButton>

/// A picture that can be pressed: the twin `picX` of a button `cmdX`, or the arrow that opens a pick list.
///
/// A click takes the focus first. Twins are no stop of the Tab key (set in the form's description); where
/// the rules give a picture keys, it is one, and Enter and Space press it.
class BotonImagen : public QToolButton {
    Q_OBJECT
  public:
    explicit BotonImagen(QWidget* padre = nullptr);

  protected:
    void keyPressEvent(QKeyEvent* evento) override;
};
