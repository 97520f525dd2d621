#pragma once

#include <QObject>

/// While one of these lives, nothing that the user does reaches the program: not the keys, not the mouse, not
/// the close box of a window. What comes in is dropped rather than kept for later, so that keys typed during
/// long work press nothing after it. A modal window that the work itself shows takes its input as always.
/// Assistive programs press buttons without any input: who starts work on a press asks `Activa()` first.
class SinEntrada : public QObject {
    Q_OBJECT
  public:
    SinEntrada();
    /// Drops what has come in up to now.
    ~SinEntrada() override;

    /// Whether one of these lives.
    static bool Activa();
    /// Turns the event loop once: windows repaint, input is dropped.
    static void Ceder();

    bool eventFilter(QObject* objeto, QEvent* evento) override;
};
