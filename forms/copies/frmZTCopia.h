#pragma once

#include <memory>

#include "forms/copies/FormularioDeCopia.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace Ui {
class frmZTCopia;
}

/// The dialog of the backup: folder and name of the copy, with the day of the last one.
class frmZTCopia : public FormularioDeCopia {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::Copia;

    frmZTCopia();
    ~frmZTCopia() override;

    void AnadirCaptions() override;
    void Form_Load() override;

    /// Has the user work on a backup; returns when he has done or given up.
    void Pedir(TareaDeCopia& tarea);

  protected:
    QAbstractButton* BotonDeEscape() override;

  private:
    void cmdExaminar_Click();
    void cmdAceptar_Click();
    void Crear(const QString& ruta);

    std::unique_ptr<Ui::frmZTCopia> m_ui;
    TareaDeCopia* m_tarea = nullptr;
};
