#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

class BloqueDeMunicipio;
class ListaDeEleccion;
class MarcaDeCancelar;
class ParDeBotones;
namespace Ui {
class frmZTDeclarante;
}

/// The one screen on which a declarant is typed in or changed. It works on `oDeclarante()`: every key takes
/// the boxes over into the record; nothing is stored before the form is accepted.
class frmZTDeclarante : public FormularioTrabajo {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::Declarante;

    frmZTDeclarante();
    ~frmZTDeclarante() override;

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Unload() override;
    [[nodiscard]] std::vector<DatosSinGuardar> PorGuardar() const override;
    void Reponer(const DatosSinGuardar& datos) override;

  private:
    void PrepararListas();
    void RellenarCampos();
    void PresentaBotones();
    void Comparar();
    [[nodiscard]] bool Eligiendo() const;
    /// Checks and stores what has changed. False when the form is to stay as it is.
    [[nodiscard]] bool GuardarCambios();
    void cmdAceptar_Click();
    void cmdCancelar_Click();

    std::unique_ptr<Ui::frmZTDeclarante> m_ui;
    MarcaDeCancelar* m_cancelando;
    ListaDeEleccion* m_siglas = nullptr;
    BloqueDeMunicipio* m_municipio = nullptr;
    /// Texts of the boxes as they were filled or stored last; nothing before the form is loaded.
    std::optional<QMap<QString, QString>> m_guardados;
    ParDeBotones* m_aceptar;
    ParDeBotones* m_cancelar;
};
