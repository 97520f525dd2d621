#pragma once

#include <memory>

#include "base/Tabla.h"
#include "exchange/PantallasDeIntercambio.h"
#include "shell/Formulario.h"

namespace Ui {
class frmZTImpDeclarantes;
}

/// Asks for an exchange file, imports it and shows what became of its lines. A failed import leaves the form
/// as it was, to choose another file or to leave.
class frmZTImpDeclarantes : public FormularioTrabajo, private PantallaDeImportacion {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = u"frmZTImpDeclarantes";

    frmZTImpDeclarantes();
    ~frmZTImpDeclarantes() override;

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Unload() override;

  private:
    void InicializarDatos();
    /// Shows the buttons to accept and to leave, or the one to go on.
    void PresentaBotones(bool continuar);
    void MostrarResultados(const Registro& resultados);
    /// Runs an event procedure of the form with its trap, under its fixed name.
    template <class F>
    void ConTrampa(QStringView evento, F&& cuerpo);
    void cmdModificar_Click();
    void chkAutomatico_Click();
    void cmdAceptar_Click();
    void lblFicheroErroresFich_MouseMove();
    void Cerrar();

    [[nodiscard]] bool Automatico() const override;
    void MostrarBarra() override;
    void Avanzar(int hechos, int total) override;

    std::unique_ptr<Ui::frmZTImpDeclarantes> m_ui;
};
