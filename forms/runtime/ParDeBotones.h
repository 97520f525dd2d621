#pragma once

#include <QObject>
#include <functional>

#include "core/run/IdDeTexto.h"
#include "forms/widgets/Imagenes.h"

class BotonImagen;
class Formulario;
class QAbstractButton;

/// A command of a form: its button `cmdX` and beside it the picture twin `picX`. Either runs the command, the
/// picture also while the button is disabled, as long as it is not disabled itself.
class ParDeBotones : public QObject {
    Q_OBJECT
  public:
    struct Aspecto {
        Imagen16 imagen;
        Id texto;
    };

    /// The pair belongs to the form, and so do the two controls.
    ParDeBotones(Formulario& formulario, QAbstractButton& boton, BotonImagen& imagen, const Aspecto& aspecto,
                 const std::function<void()>& orden);

    /// Takes another picture, for an enabled command, and another text for the next `PonerTexto`.
    void Tomar(const Aspecto& aspecto);
    /// Puts the text in the language in force on the button.
    void PonerTexto();
    /// Puts this text on the button. The picture is named after it, for the tool tip and for screen readers:
    /// without its access key and the blanks around it.
    void PonerTexto(const QString& texto);

    /// Enables or disables both and shows the picture or its grey twin.
    void Habilitar(bool habilitado);
    /// The same, but the picture takes its clicks all the same.
    void HabilitarBoton(bool habilitado);
    void Mostrar(bool visible);

  private:
    QAbstractButton& m_boton;
    BotonImagen& m_imagen;
    Aspecto m_aspecto;
};
