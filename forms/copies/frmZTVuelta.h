#pragma once

#include <memory>

#include "forms/copies/FormularioDeCopia.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace Ui {
class frmZTVuelta;
}

/// Tells at the start which file was refused and why, and offers the automatic copies to go back to, or to
/// end the program; where the file is missing, to start with an empty one.
class frmZTVuelta : public FormularioDeCopia {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::Vuelta;

    frmZTVuelta();
    ~frmZTVuelta() override;

    void AnadirCaptions() override;
    void Form_Load() override;

    /// True when the user has gone back to a copy; False when the program is to end, or to start with an
    /// empty file where it is missing.
    [[nodiscard]] bool Pedir(TareaDeVuelta& tarea);

  protected:
    QAbstractButton* BotonDeEscape() override;

  private:
    /// Whether the file is missing and the copies are the alternative to an empty one.
    [[nodiscard]] bool SoloFalta() const;
    void MostrarRechazo();
    void LlenarLista();
    void cmdVolver_Click();

    std::unique_ptr<Ui::frmZTVuelta> m_ui;
    TareaDeVuelta* m_tarea = nullptr;
    /// Where the form leaves its answer, which outlives it.
    std::shared_ptr<bool> m_hecho;
};
