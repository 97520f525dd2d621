#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

class ParDeBotones;
namespace Ui {
class frmZTListaDeclarantes;
}

/// All declarants in a list, to open one or to delete some; `Modo` of `oListaDeclarantes()` says which, and
/// its buffer says what is shown.
class frmZTListaDeclarantes : public FormularioTrabajo {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::ListaDeclarantes;

    frmZTListaDeclarantes();
    ~frmZTListaDeclarantes() override;

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

  private:
    void InicializarDatos();
    void InicializarLista();
    void RellenarLista();
    void PresentaBotones();
    void OrdenarPor(qint16 columna);
    void ConectarLista();

    void cmdAceptar_Click();
    void cmdCancelar_Click();
    void AbrirDeclarante();
    void BorrarDeclarante();
    void lsvDeclarantes_KeyPress(int& keyAscii);
    void lsvDeclarantes_KeyUp(int tecla);

    std::unique_ptr<Ui::frmZTListaDeclarantes> m_ui;
    ParDeBotones* m_aceptar;
    ParDeBotones* m_cancelar;
};
