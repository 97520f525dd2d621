#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

class ParDeBotones;
namespace Ui {
class frmZTAbout;
}

/// The About box.
class frmZTAbout : public FormularioModal {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::About;

    frmZTAbout();
    ~frmZTAbout() override;

    void AnadirCaptions() override;
    void Form_Load() override;

  protected:
    QAbstractButton* BotonDeEscape() override;

  private:
    std::unique_ptr<Ui::frmZTAbout> m_ui;
    ParDeBotones* m_aceptar;
};
