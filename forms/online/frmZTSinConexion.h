#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace Ui {
class frmZTSinConexion;
}

/// Tells, in both languages at once, that the update check failed: the service could not be reached, or what
/// it gave could not be read. The user's choice not to be asked again lasts for this run only.
class frmZTSinConexion : public FormularioModal {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::SinConexion;

    frmZTSinConexion();
    ~frmZTSinConexion() override;

    void Form_Load() override;

  protected:
    QAbstractButton* BotonDeEscape() override;
    void changeEvent(QEvent* evento) override;

  private:
    void PonerTextos();
    /// Puts the window, its frame included, in the middle of the screen.
    void Centrar();

    std::unique_ptr<Ui::frmZTSinConexion> m_ui;
    /// True once it has been centred with the frame, which the window system puts on when it shows it.
    bool m_enSuSitio = false;
};
