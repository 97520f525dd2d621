#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class DialogoInfoOnline;
}

/// The description of the on-line assistance, with the address of the page that tells more and a button that
/// opens it. Like a message box it is none of the program's forms.
class DialogoInfoOnline : public QDialog {
    Q_OBJECT
  public:
    /// `idioma` is 0 for Castellano and 1000 for Euskera. Modal to `padre`.
    DialogoInfoOnline(qint16 idioma, const QString& direccion, QWidget* padre);
    ~DialogoInfoOnline() override;

  private:
    void PonerTextos(qint16 idioma);

    std::unique_ptr<Ui::DialogoInfoOnline> m_ui;
};
