#pragma once

#include <memory>

#include "forms/runtime/FamiliaDeControles.h"
#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

class BloqueDeEstablecimientos;
class CajaNumerica;
class ParDeBotones;
class QLabel;
namespace Ui {
class frmZTDetDeclaracion;
}

/// The entry of the annexes of the open declaration, one establishment at a time. It works on `oAnexos()`:
/// leaving a box takes its figure and follows with rates and quotas, and saving stores the lines of all
/// establishments at once. It unloads itself whenever it gives way to the form of an establishment, which
/// shows it again on closing.
class frmZTDetDeclaracion : public FormularioTrabajo {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::DetDeclaracion;

    frmZTDetDeclaracion();
    ~frmZTDetDeclaracion() override;

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;
    [[nodiscard]] std::vector<DatosSinGuardar> PorGuardar() const override;
    void Reponer(const DatosSinGuardar& datos) override;

    /// Fills the list from the store, selects an establishment and brings its annex on the screen.
    void RellenarEstDecl();
    /// Changes the establishment on the screen; the figures of the one before go to the lines. With 0 the
    /// establishment stays, and its figures are read from the lines.
    void CargarAnexos(qint32 lngCSES = 0);

  private:
    void ConectarBotones();
    void ConectarLista();
    void ConectarCajas();
    void InicializarLista();
    void AnadirEstablecimientos();
    void SeleccionarEstablecimiento();
    [[nodiscard]] bool VolverAlEstablecimiento();
    void PresentaBotonesLista();
    void PresentaBotonesAnexo();
    void MostrarAnexo();
    void HabilitarCajas();
    /// Brings the figures on the screen into the lines.
    void GuardarAnexo();

    /// The figure that stands in a box, in hundredths; `tomada` where its text says none.
    [[nodiscard]] static qint64 CentesimasDe(const CajaNumerica& caja, double tomada);

    void lsvEstablecimientos_Click();
    void lsvEstablecimientos_DblClick();
    void cmdNuevo_Click();
    void cmdDatos_Click();
    void cmdEliminar_Click();
    void cmdGuardarDeclaracion_Click();
    void cmdCerrarAnexo_Click();

    std::unique_ptr<Ui::frmZTDetDeclaracion> m_ui;
    BloqueDeEstablecimientos* m_bloque = nullptr;
    ParDeBotones* m_guardar = nullptr;
    ParDeBotones* m_cerrar = nullptr;
    FamiliaDeControles<CajaNumerica> m_cnuExento;
    FamiliaDeControles<CajaNumerica> m_cnuBaseImp;
    FamiliaDeControles<QLabel> m_lblTipo;
    FamiliaDeControles<QLabel> m_lblCuota;
};
