#pragma once

#include <QObject>

class QWidget;

/// The key F1 all over the program: it shows the help topic of the form that is in use, also while a dialog
/// takes all other input.
class TeclaDeAyuda : public QObject {
    Q_OBJECT
  public:
    /// Belongs to the frame, above which the help window stands.
    explicit TeclaDeAyuda(QWidget& marco);

    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    QWidget& m_marco;
};
