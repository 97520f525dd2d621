#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

class ParDeBotones;
namespace Ui {
class frmZTDeclaracion;
}

/// The summary of the open declaration, for reading only: the figures of `oDeclaraciones()`, which the
/// caller has loaded. It leads on to the entry of the annexes, where the figures come from.
class frmZTDeclaracion : public FormularioTrabajo {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::Declaracion;

    frmZTDeclaracion();
    ~frmZTDeclaracion() override;

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Unload() override;

  private:
    void MostrarDeclaracion();
    void cmdDetalles_Click();
    void cmdCerrarDec_Click();

    std::unique_ptr<Ui::frmZTDeclaracion> m_ui;
    ParDeBotones* m_cerrar;
};
