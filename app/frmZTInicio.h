#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace Ui {
class frmZTInicio;
}

/// The splash. Its load keeps control for four seconds, or for as long as the update check takes if that is
/// switched on and takes longer. Behind it the user's store is read whole; where that takes longer still, the
/// splash stays with a bar and a button that skips the rest.
class frmZTInicio : public FormularioTrabajo {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::Inicio;

    frmZTInicio();
    ~frmZTInicio() override;

    void AnadirCaptions() override;
    void Form_Load() override;

  private:
    void HacerVisible();
    void BuscarActualizacion();
    void EsperarRevision();

    std::unique_ptr<Ui::frmZTInicio> m_ui;
};
