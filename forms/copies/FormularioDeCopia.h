#pragma once

#include <QFileDialog>
#include <functional>
#include <optional>

#include "core/copies/CanalCopias.h"
#include "forms/runtime/Formulario.h"

class QLineEdit;
class QProgressBar;

/// What the dialogs of the copies have in common: boxes for a folder and a name with a file dialog behind
/// them, and long work under a progress bar.
class FormularioDeCopia : public FormularioModal {
    Q_OBJECT
  public:
    explicit FormularioDeCopia(QStringView nombre);

  protected:
    using Trabajo = std::function<std::optional<FalloDeCopia>(const AvanceDeCopia&)>;

    /// Prepares the bar: it keeps its place in the form and shows only while there is work.
    static void PrepararBarra(QProgressBar& barra);

    /// Runs the work and gives what comes of it. The form repaints meanwhile and takes no input; what is
    /// pressed during the work is lost, and the form cannot be closed.
    std::optional<FalloDeCopia> Trabajar(QProgressBar& barra, const Trabajo& trabajo);

    /// Has the user choose a file with the toolkit's dialog, from what stands in the boxes on, and puts it
    /// there. False when he gives up.
    bool ElegirFichero(QLineEdit& carpeta, QLineEdit& nombre, const QString& filtro,
                       QFileDialog::AcceptMode modo);

    /// Asks under the title of the dialog. A question that is closed in another way is a no.
    [[nodiscard]] bool Preguntar(const QString& pregunta) const;
    void Avisar(const QString& aviso) const;

    void closeEvent(QCloseEvent* evento) override;

  private:
    bool m_trabajando = false;
};
