#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace Ui {
class frmZTImp;
}

/// The dialog between the user and the printer: which copies are printed, with which date of presentation,
/// and on which printer. What is to be printed stands in `oImprimir()` and `oDeclaraciones()` before.
class frmZTImp : public FormularioModal {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::Imp;

    frmZTImp();
    ~frmZTImp() override;

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Activate() override;

  protected:
    [[nodiscard]] QAbstractButton* BotonDeEscape() override;

  private:
    void ActualizarOpciones();
    void OfrecerFecha();
    void QuitarFecha();
    /// True when printing must not go on; the user has been told why.
    [[nodiscard]] bool ValidarFecha();
    void RecogerOpciones() const;
    [[nodiscard]] bool HayEjemplares() const;

    void cmdAceptar_Click();
    void cmdCancelar_Click();
    void cmdOpcImp_Click();

    std::unique_ptr<Ui::frmZTImp> m_ui;
    /// The text of no date, in the language of the screen.
    QString m_fechaVacia;
};
