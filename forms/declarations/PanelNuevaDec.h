#pragma once

#include <QObject>
#include <QString>
#include <array>
#include <functional>

class BotonImagen;
class CajaTexto;
class Formulario;
class ListaZT;
class QLabel;
class QLineEdit;
class QWidget;

/// The panel of the list of declarations in which year and quarter of a new one are chosen: the controls of
/// `oNuevaDec()` at work.
///
/// The year is checked as it is typed. The quarter stands in a read-only box; a click on it, or a click or
/// Enter on the arrow beside it, drops the list of quarters over the form. There a click or Enter takes an
/// item, Escape leaves the choice as it was, and both end with the focus on the arrow; the list hides when
/// it loses the focus. The two images leave the panel.
class PanelNuevaDec : public QObject {
    Q_OBJECT
  public:
    struct Controles {
        QWidget& marco;
        QLabel& lblNuevaDec;
        QLabel& lblEjer;
        CajaTexto& txtEjercicio;
        QLabel& lblPer;
        QLineEdit& txtPeriodo;
        BotonImagen& picPeriodo;
        ListaZT& lsvPeriodos;
        /// Cancel and confirm.
        std::array<BotonImagen*, 2> ImgNueva;
    };

    struct Reglas {
        /// The record has changed: panel and form are to be painted again.
        std::function<void()> refrescar;
        std::function<void()> cancelar;
        std::function<void()> confirmar;
    };

    PanelNuevaDec(Formulario& formulario, const Controles& controles, Reglas reglas);

    void AnadirCaptions();
    /// Puts the images that the panel has at load time.
    void CargarImagenes();
    /// Puts the arrow in repose on its picture.
    void PonerFlecha();
    void Mostrar();
    void Ocultar();
    /// Paints the year and quarter of the record.
    void Pintar();
    /// The focus to the year.
    void Entrar();

    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void ComprobarEjercicio();
    void LimpiarEjercicio();
    void AbrirPeriodos();
    void ElegirPeriodo();
    void TeclaEnPeriodos(int& keyAscii);

    Formulario& m_formulario;
    Controles m_c;
    Reglas m_reglas;
};
