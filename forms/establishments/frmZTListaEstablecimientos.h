#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

class BloqueDeEstablecimientos;
class ParDeBotones;
namespace Ui {
class frmZTListaEstablecimientos;
}

/// The establishments of the current declarant: new, change, delete. It is reached from the list of
/// declarations and goes back to it; while an establishment is edited it is unloaded.
class frmZTListaEstablecimientos : public FormularioTrabajo {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::ListaEstablecimientos;

    frmZTListaEstablecimientos();
    ~frmZTListaEstablecimientos() override;

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Activate() override;

  private:
    void InicializarLista();
    void RellenarEstablecimientos();
    void SeleccionarFila();
    void PresentaBotones();

    void cmdNuevo_Click();
    void cmdDatos_Click();
    void cmdEliminar_Click();
    void cmdCerrarLista_Click();
    void lsvEstablecimientos_KeyPress(int& keyAscii);

    std::unique_ptr<Ui::frmZTListaEstablecimientos> m_ui;
    BloqueDeEstablecimientos* m_bloque;
    ParDeBotones* m_cerrar;
};
