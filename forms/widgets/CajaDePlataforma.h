#pragma once

#include <QMessageBox>
#include <QString>

/// The platform's message box with one button, "MensajePlataforma": all of them look alike, and like the
/// program's own. Texts carry names of files and answers of services, and are shown as text, never as markup.
class CajaDePlataforma : public QMessageBox {
    Q_OBJECT
  public:
    CajaDePlataforma(Icon icono, const QString& titulo, const QString& texto, QWidget* sobre);

  protected:
    void showEvent(QShowEvent* evento) override;
};
