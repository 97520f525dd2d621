#pragma once

#include <memory>

#include "shell/Formulario.h"

namespace Ui {
class frmZTAbout;
}

/// The About box.
class frmZTAbout : public FormularioModal {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = u"frmZTAbout";

    frmZTAbout();
    ~frmZTAbout() override;

    void AnadirCaptions() override;
    void Form_Load() override;

  protected:
    QAbstractButton* BotonDeEscape() override;

  private:
    std::unique_ptr<Ui::frmZTAbout> m_ui;
};
