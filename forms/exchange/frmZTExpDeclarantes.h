#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

class ListaZT;
class ParDeBotones;
namespace Ui {
class frmZTExpDeclarantes;
}

/// All declarants in one list, and in another those to be exported; the user moves them between the two. Puts
/// the chosen ones into `oExportaciones()` and goes on to the choice of the file.
class frmZTExpDeclarantes : public FormularioTrabajo {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::ExpDeclarantes;

    frmZTExpDeclarantes();
    ~frmZTExpDeclarantes() override;

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Activate() override;

    /// Room for the columns of both lists.
    [[nodiscard]] QSize sizeHint() const override;

  private:
    [[nodiscard]] QString Modulo() const override;
    void InicializarLista();
    void RellenarLista(ListaZT& lista);
    /// Enables the buttons by what the two lists hold.
    void PresentaBotones();
    /// Orders a list by its first heading and puts the arrow of the order there. The list takes the focus.
    void Ordenar(ListaZT& lista);
    void ConectarLista(ListaZT& desde, ListaZT& hasta);
    /// Moves the selected items from one list to the other.
    void MoverSeleccionados(ListaZT& desde, ListaZT& hasta);
    void MoverTodos(ListaZT& hasta);

    void cmdAceptar_Click();
    void cmdCancelar_Click();

    std::unique_ptr<Ui::frmZTExpDeclarantes> m_ui;
    ParDeBotones* m_aceptar;
    ParDeBotones* m_cancelar;
    /// Width of a list that shows its columns whole, in pixels.
    int m_anchoDeLista = 0;
};
