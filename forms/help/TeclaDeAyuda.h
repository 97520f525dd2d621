#pragma once

#include <QObject>

/// The key F1 all over the program: while one of these lives, it shows the help topic of the form that is in
/// use, also while a dialog takes all other input, and in the dialogs that come before the main window.
class TeclaDeAyuda : public QObject {
    Q_OBJECT
  public:
    TeclaDeAyuda();

    bool eventFilter(QObject* objeto, QEvent* evento) override;
};
