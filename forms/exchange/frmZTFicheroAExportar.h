#pragma once

#include <memory>

#include "core/exchange/PantallasDeIntercambio.h"
#include "forms/exchange/FormularioDeIntercambio.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace Ui {
class frmZTFicheroAExportar;
}

/// Asks for the file of the export and writes the declarants of `oExportaciones()` into it. A failed export
/// leaves the form as it was, to choose another file or to leave.
class frmZTFicheroAExportar : public FormularioDeIntercambio, private PantallaDeExportacion {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::FicheroAExportar;

    frmZTFicheroAExportar();
    ~frmZTFicheroAExportar() override;

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Unload() override;

  private:
    void cmdAceptar_Click() override;

    [[nodiscard]] QString Fichero() const override;
    [[nodiscard]] QString Titulo() const override;
    void Empezar() override;
    void Terminar() override;
    void MostrarBarra() override;
    void Avanzar(int hechos, int total) override;

    std::unique_ptr<Ui::frmZTFicheroAExportar> m_ui;
};
