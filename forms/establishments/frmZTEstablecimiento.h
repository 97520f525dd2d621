#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

class BloqueDeMunicipio;
class MarcaDeCancelar;
class ParDeBotones;
namespace Ui {
class frmZTEstablecimiento;
}

/// The screen of one establishment of the current declarant. It works on `oEstablecimientos()`; its caller
/// has unloaded itself and is shown again when the form goes.
class frmZTEstablecimiento : public FormularioTrabajo {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::Establecimiento;

    frmZTEstablecimiento();
    ~frmZTEstablecimiento() override;

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Unload() override;
    [[nodiscard]] std::vector<DatosSinGuardar> PorGuardar() const override;
    void Reponer(const DatosSinGuardar& datos) override;

  private:
    void PrepararListas();
    void RellenarCampos();
    void Comparar();
    /// Where the focus goes once the province is chosen.
    [[nodiscard]] QWidget& TrasLaProvincia() const;
    /// Takes the boxes over, checks and stores the record. False when the form is to stay as it is.
    [[nodiscard]] bool GuardarCambios();
    void cmdAceptar_Click();
    void cmdCancelar_Click();

    std::unique_ptr<Ui::frmZTEstablecimiento> m_ui;
    MarcaDeCancelar* m_cancelando;
    BloqueDeMunicipio* m_municipio = nullptr;
    /// Texts of the boxes as they were filled or stored last; nothing before the form is loaded.
    std::optional<QMap<QString, QString>> m_guardados;
    ParDeBotones* m_aceptar;
    ParDeBotones* m_cancelar;
};
