#pragma once

#include <array>
#include <memory>

#include "core/run/IdDeTexto.h"
#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

class PanelNuevaDec;
class QAbstractButton;
namespace Ui {
class frmZTListaDeclaraciones;
}

/// The declarations of the open declarant, and the hub of the work on him: open, make, delete and print a
/// declaration, his data, his establishments, and closing him. A new declaration is entered in a panel on
/// this same screen. Each screen reached from here unloads it and shows it again on closing.
class frmZTListaDeclaraciones : public FormularioTrabajo {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::ListaDeclaraciones;

    frmZTListaDeclaraciones();
    ~frmZTListaDeclaraciones() override;

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    struct Orden {
        QAbstractButton* boton;
        Id texto;
        void (frmZTListaDeclaraciones::*procedimiento)();
    };
    [[nodiscard]] std::array<Orden, 7> Ordenes() const;

    void ConectarBotones();
    void ConectarLista();
    void PrepararPanel();

    void InicializarLista();
    void RellenarListaDeclaraciones();
    void RefrescarLista();
    void SeleccionarFila();
    /// Applies `m_nuevaActiva` to all controls.
    void PresentaPanelNueva();
    void PresentaPanel();
    void PresentaLista();
    /// Hides the panel and loads its images, at load time.
    void OcultarPanelNueva();
    void HabilitarBotones(bool habilitados);

    /// Paints the year and quarter chosen into the panel.
    void RefrescarNueva();
    void CancelarNueva();
    void CrearDeclaracion();

    /// Year and quarter of the selected row.
    [[nodiscard]] qint16 EjercicioElegido() const;
    [[nodiscard]] qint16 PeriodoElegido() const;
    void AbrirDeclaracion();
    void cmdnuedecla_Click();
    void cmddatdecla_Click();
    void cmdeli_Click();
    void cmdImpOfi_Click();
    void cmdDte_Click();
    void cmdEstablecimientos_Click();
    void cmdCerrarDec_Click();
    void lsvDeclaraciones_KeyPress(int& keyAscii);

    std::unique_ptr<Ui::frmZTListaDeclaraciones> m_ui;
    PanelNuevaDec* m_panel = nullptr;
    /// The panel for a new declaration is up.
    bool m_nuevaActiva = false;
};
