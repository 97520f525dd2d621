#pragma once

#include <QMainWindow>
#include <array>
#include <memory>

#include "core/base/Tabla.h"
#include "forms/runtime/Formulario.h"
#include "forms/runtime/Menus.h"
#include "forms/runtime/NombresDeFormulario.h"

class QAction;
namespace Ui {
class MDIZT;
}

/// The frame of the program: menu, tool bar, recent declarants, and the parent of all working forms. It
/// holds no data of its own. Unloading it is the one way of ending an ordinary run.
class MDIZT : public QMainWindow, public Formulario, public CanalMenus {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::MDIZT;
    static constexpr int kRecientes = 4;

    MDIZT();
    ~MDIZT() override;
    [[nodiscard]] QWidget& Ventana() override { return *this; }

    void AnadirCaptions() override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload() override;

    void HabilitarMenu() override;
    void DeshabilitarMenu() override;

  protected:
    void closeEvent(QCloseEvent* evento) override;

  private:
    void PonerTextos();
    void PrepararBarra();
    void ConectarMenus();
    void MostrarRecientes(const Tabla& declarantes);
    /// The button of the tool bar with that key.
    QAction& Boton(const QString& clave);

    void mnuNuedec_Click();
    void mnuAbrDec_Click();
    void mnuEliDec_Click();
    void AbrirReciente(const QAction& entrada);
    void mnuRestore_Click();
    void mnuDescripAsisOnline_Click();
    void mnuAsisOnline_Click();
    void mnucontind_Click();
    void BotonDeBarra(const QString& clave);

    std::unique_ptr<Ui::MDIZT> m_ui;
    std::array<QAction*, kRecientes> m_recientes{};
    /// Raised by the load, lowered by the first activation.
    bool m_primeraActivacion = false;
};
