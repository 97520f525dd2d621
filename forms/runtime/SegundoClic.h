#pragma once

#include <QObject>

/// Eats the second half of a double click whose first half has already done its work and taken away what lay
/// under the mouse, so that it does not hit what lies beneath. It ends with that half, or with the next click
/// that is none.
class SegundoClic : public QObject {
    Q_OBJECT
  public:
    /// To be called while the first half is at work.
    static void Tragar();

    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    explicit SegundoClic(QObject* padre);
    void Terminar();

    bool m_apretado = false;
};
