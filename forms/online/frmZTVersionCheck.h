#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace Ui {
class frmZTVersionCheck;
}

/// Shows the installed version beside the one that the update service offers, in both languages at once, and
/// opens the page from which it can be fetched. What the service sent is shown as plain text.
class frmZTVersionCheck : public FormularioModal {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::VersionCheck;

    frmZTVersionCheck();
    ~frmZTVersionCheck() override;

    void Form_Load() override;

    /// Opens an address in the user's browser, which asks for it with the POST method by way of the local
    /// page "temphtm.HTM". Raises 75 and 20001 as `EscribirPaginaDeEnvio` does, and 326 where there is no
    /// browser: the texts of that notice stand in no row of the table.
    static void LanzarExplorador(const QWidget& Padre, const QString& URL);

  protected:
    QAbstractButton* BotonDeEscape() override;

  private:
    void CmdActualizar_Click();
    void TxtUrl_Click();

    std::unique_ptr<Ui::frmZTVersionCheck> m_ui;
};
