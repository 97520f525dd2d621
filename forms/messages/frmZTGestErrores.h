#pragma once

#include <memory>

#include "forms/runtime/Formulario.h"
#include "forms/runtime/NombresDeFormulario.h"

namespace Ui {
class frmZTGestErrores;
}

/// The dialog of an unexpected failure, in Castellano only. It opens with its first part; `cmdMas` opens the
/// details below it for good.
class frmZTGestErrores : public FormularioModal {
    Q_OBJECT
  public:
    static constexpr QStringView kNombre = Forma::GestErrores;
    /// Kind of the data that a drag of `Image1` carries.
    static constexpr QStringView kArrastre = u"application/x-zelt-image1";

    frmZTGestErrores();
    ~frmZTGestErrores() override;

    void Form_Load() override;
    void Form_Unload() override;

    /// Writes the failure log, fills the four boxes and shows itself until it is closed.
    void Mostrar(const QString& formulario, const QString& evento, const QString& descripcion);

    /// The drag of `Image1` and its drop.
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  protected:
    QAbstractButton* BotonDeEscape() override;

  private:
    void AbrirDetalles();
    void PonerAlto(int twips);
    void ArrastrarImagen();
    void SoltarImagen();

    std::unique_ptr<Ui::frmZTGestErrores> m_ui;
};
