#pragma once

#include <memory>

#include "core/base/Tabla.h"
#include "core/exchange/PantallasDeIntercambio.h"
#include "forms/exchange/FormularioDeIntercambio.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace Ui {
class frmZTImpDeclarantes;
}

/// Asks for an exchange file, imports it and shows what became of its lines. A failed import leaves the form
/// as it was, to choose another file or to leave.
class frmZTImpDeclarantes : public FormularioDeIntercambio, private PantallaDeImportacion {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::ImpDeclarantes;

    frmZTImpDeclarantes();
    ~frmZTImpDeclarantes() override;

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Unload() override;

  private:
    void InicializarDatos();
    void MostrarResultados(const Registro& resultados);
    void chkAutomatico_Click();
    void cmdAceptar_Click() override;
    void FicheroElegido(const QString& ruta) override;
    void lblFicheroErroresFich_MouseMove();

    [[nodiscard]] bool Automatico() const override;
    [[nodiscard]] bool EnUtf8() const override;
    void MostrarBarra() override;
    void Avanzar(int hechos, int total) override;

    std::unique_ptr<Ui::frmZTImpDeclarantes> m_ui;
};
