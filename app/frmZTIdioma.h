#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace Ui {
class frmZTIdioma;
}

/// The language screen of a first run. It speaks both languages at once, so its captions never change.
class frmZTIdioma : public FormularioModal {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::Idioma;

    frmZTIdioma();
    ~frmZTIdioma() override;

    void Form_Load() override;
    void Form_Activate() override;

    /// Turns the Return key into a Tab: it moves the focus and presses nothing.
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void ElegirIdioma(const QString& codigo);
    void GuardarAviso();

    std::unique_ptr<Ui::frmZTIdioma> m_ui;
};
