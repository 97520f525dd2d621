#pragma once

#include <memory>

#include "shell/Formulario.h"

namespace Ui {
class frmZTInicio;
}

/// The splash. Its load keeps control for four seconds, or for as long as the update check takes if that is
/// switched on and takes longer.
class frmZTInicio : public FormularioTrabajo {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = u"frmZTInicio";

    frmZTInicio();
    ~frmZTInicio() override;

    void AnadirCaptions() override;
    void Form_Load() override;

  private:
    void HacerVisible();
    void BuscarActualizacion();

    std::unique_ptr<Ui::frmZTInicio> m_ui;
};
