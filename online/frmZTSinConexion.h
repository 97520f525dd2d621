#pragma once

#include <memory>

#include "shell/Formulario.h"

namespace Ui {
class frmZTSinConexion;
}

/// Tells, in both languages at once, that the update check failed: the service could not be reached, or what
/// it gave could not be read. The user's choice not to be asked again lasts for this run only.
class frmZTSinConexion : public FormularioModal {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = u"frmZTSinConexion";

    frmZTSinConexion();
    ~frmZTSinConexion() override;

    void Form_Load() override;

  protected:
    QAbstractButton* BotonDeEscape() override;

  private:
    void PonerTextos();

    std::unique_ptr<Ui::frmZTSinConexion> m_ui;
};
