#pragma once

#include <memory>

#include "forms/copies/FormularioDeCopia.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace Ui {
class frmZTRestaurar;
}

/// The dialog of the restore: folder and name of a copy, and what it holds. A file is read when it has been
/// chosen, when the focus leaves its boxes, and once more before it is restored.
class frmZTRestaurar : public FormularioDeCopia {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::Restaurar;

    frmZTRestaurar();
    ~frmZTRestaurar() override;

    void AnadirCaptions() override;
    void Form_Load() override;

    /// Has the user work on a restore; returns when he has done or given up.
    void Pedir(TareaDeRestauracion& tarea);

  protected:
    QAbstractButton* BotonDeEscape() override;

  private:
    void cmdExaminar_Click();
    void cmdAceptar_Click();
    /// Reads the file that the boxes name and shows what it holds, or why it cannot be restored.
    TareaDeRestauracion::Examen Examinar();
    void Restaurar(const ResumenDeCopia& copia);

    std::unique_ptr<Ui::frmZTRestaurar> m_ui;
    /// What is worked on; none until the form is asked to.
    TareaDeRestauracion* m_tarea = nullptr;
};
