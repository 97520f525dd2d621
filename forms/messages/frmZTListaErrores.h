#pragma once

#include <memory>

#include "core/base/Tabla.h"
#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace Ui {
class frmZTListaErrores;
}

/// The list of the faults in what the user typed. Its own captions are Castellano in both languages; the
/// faults are in the language in force.
class frmZTListaErrores : public FormularioModal {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::ListaErrores;

    frmZTListaErrores();
    ~frmZTListaErrores() override;

    /// Takes the faults: column 0 the group, column 1 the code, rows from 0 (see `LineasDeErrores`). To be
    /// given before the form is shown.
    void ListaErrores(const Tabla& errores);

    /// Fills the list anew from the faults taken.
    void RellenarListaDeErrores();

  protected:
    QAbstractButton* BotonDeEscape() override;

  private:
    std::unique_ptr<Ui::frmZTListaErrores> m_ui;
    Tabla m_errores;
};
