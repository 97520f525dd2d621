#pragma once

#include <QObject>

class QAbstractButton;

/// The mark `Cancelando` of an entry form: while it is up, the rules of leaving its code boxes do nothing, so
/// that leaving a bad code to cancel does not pop a list open.
///
/// It goes up when a mouse button goes down over the cancel button or its picture, and when the button's
/// access key or Enter on it is pressed; it is up before the box that has the focus loses it, and stays up
/// until the form goes, to which it belongs.
class MarcaDeCancelar : public QObject {
    Q_OBJECT
  public:
    MarcaDeCancelar(QAbstractButton& boton, QAbstractButton& imagen);

    [[nodiscard]] bool Puesta() const;

    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    const QAbstractButton& m_boton;
    const QAbstractButton& m_imagen;
    bool m_puesta = false;
};
