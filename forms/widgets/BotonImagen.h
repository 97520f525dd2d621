#pragma once

#include <QToolButton>

/// A picture that can be pressed: the twin `picX` of a button `cmdX`, or the arrow that opens a pick list.
///
/// A click takes the focus first. Twins are no stop of the Tab key. The arrows of pick lists and the pictures
/// that have no button are stops, which their form's description says (strong focus), and Enter and Space
/// press them.
class BotonImagen : public QToolButton {
    Q_OBJECT
  public:
    explicit BotonImagen(QWidget* padre = nullptr);

  protected:
    void keyPressEvent(QKeyEvent* evento) override;
};
