#pragma once

#include <functional>

#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formulario.h"

class BarraDeProgreso;
class BotonImagen;
class BotonZT;
class EtiquetaDeRuta;
class ParDeBotones;
class QAbstractButton;
class QLabel;

/// What the chosen file is for.
enum class UsoDelFichero { Leer, Escribir };

/// What the screens of the export and of the import have in common: the file and its choice, the buttons to
/// accept and to leave, the bar of the work, and then the button to go on.
///
/// A button that is pressed while the work runs, or that is not on the screen, does nothing: programs for
/// assistance press buttons without the input that `SinEntrada` drops, and some time after they were told to.
class FormularioDeIntercambio : public FormularioTrabajo {
    Q_OBJECT
  protected:
    /// The controls, by their names.
    struct Controles {
        EtiquetaDeRuta* lblFichero = nullptr;
        BotonZT* cmdModificar = nullptr;
        BarraDeProgreso* shpFondo = nullptr;
        QLabel* lblAviso = nullptr;
        BotonZT* cmdAceptar = nullptr;
        BotonImagen* picAceptar = nullptr;
        BotonZT* cmdCancelar = nullptr;
        BotonImagen* picCancelar = nullptr;
        BotonZT* CmdContinuar = nullptr;
        BotonImagen* picContinuar = nullptr;
    };
    /// The buttons that are on the screen.
    enum class Botones { AceptarYCancelar, Ninguno, Continuar };

    /// `modulo` stands in front of the names of the event procedures.
    FormularioDeIntercambio(QStringView nombre, QStringView modulo, UsoDelFichero uso);

    /// Takes the controls of the screen once they are there.
    template <class Pantalla>
    void Preparar(const Pantalla& ui) {
        Preparar({ui.lblFichero, ui.cmdModificar, ui.shpFondo, ui.lblAviso, ui.cmdAceptar, ui.picAceptar,
                  ui.cmdCancelar, ui.picCancelar, ui.CmdContinuar, ui.picContinuar});
    }
    [[nodiscard]] QString Modulo() const override { return m_modulo; }

    /// Texts of the controls in common but `lblAviso`.
    void CaptionsComunes();
    /// The suggested file, ready to begin.
    void InicializarComunes();
    void PresentaBotones(Botones cuales);
    /// For a control that comes and goes: the form keeps its size.
    static void GuardarSitio(QWidget& control);

    virtual void cmdAceptar_Click() = 0;
    /// Another file has come into `lblFichero`.
    virtual void FicheroElegido(const QString& /*ruta*/) {}

  private:
    void Preparar(const Controles& controles);
    /// Runs the command of a button, unless the button is not to be pressed now.
    static void Ordenar(const QAbstractButton& boton, const std::function<void()>& orden);
    void PonerFichero(const QString& ruta);
    void cmdModificar_Click();
    void Cerrar();

    QString m_modulo;
    UsoDelFichero m_uso;
    Controles m_controles;
    ParDeBotones* m_aceptar = nullptr;
    ParDeBotones* m_cancelar = nullptr;
    ParDeBotones* m_continuar = nullptr;
};
