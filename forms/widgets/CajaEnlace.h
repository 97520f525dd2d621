#pragma once

#include <QLineEdit>

/// A box that shows an address, to be read and copied, and that works as a link: a click that selects
/// nothing, Enter and Space press it.
class CajaEnlace : public QLineEdit {
    Q_OBJECT
  public:
    explicit CajaEnlace(QWidget* padre = nullptr);

  Q_SIGNALS:
    void pulsada();

  protected:
    void changeEvent(QEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;

  private:
    void PonerColorDeEnlace();
};
