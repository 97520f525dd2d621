#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace Ui {
class frmZTMsgBox;
}

/// The message box: a notice with one button, or a question with two.
class frmZTMsgBox : public FormularioModal {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::MsgBox;

    frmZTMsgBox();
    ~frmZTMsgBox() override;

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Unload() override;

    /// Shows the box and gives the answer, 1 Aceptar or 2 Cancelar, which is also left in the environment.
    /// A box closed in another way answers what the box before it did. Both texts are plain.
    qint16 Preguntar(const QString& texto, const QString& titulo, bool unBoton);

  protected:
    QAbstractButton* BotonDeEscape() override;

  private:
    void PonerMensaje(const QString& texto);
    void Responder(qint16 respuesta);

    std::unique_ptr<Ui::frmZTMsgBox> m_ui;
};
