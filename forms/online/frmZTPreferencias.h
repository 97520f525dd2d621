#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace Ui {
class frmZTPreferencias;
}

/// The preferences: language of the program, update check at start, and a check at once. While it is on the
/// screen a check counts as one on demand.
class frmZTPreferencias : public FormularioModal {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::Preferencias;

    frmZTPreferencias();
    ~frmZTPreferencias() override;

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Activate() override;

  protected:
    QAbstractButton* BotonDeEscape() override;

  private:
    /// Shows the settings in force, at the load and on every activation.
    void MostrarOpciones();
    /// Keeps the language that an option chooses by being set or taken back.
    void OpcionCambiada(QAbstractButton& opcion, const QString& puesta, const QString& quitada);
    void Aceptar();

    std::unique_ptr<Ui::frmZTPreferencias> m_ui;
    /// The chosen language, "C" or "E"; empty until an option is clicked or set.
    QString m_sIdioma;
};
