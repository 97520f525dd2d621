#pragma once

#include <QObject>
#include <QString>
#include <functional>

class Formulario;
class ListaDeEleccion;
class QWidget;

/// Province and municipality on an entry form: the boxes of their codes with the pick lists that they drop,
/// and the boxes of their names. The controls bear the names that both entry forms give them ("txtProvin",
/// "picProvin", "lsvProvin", "txtNombreProv", "txtMuni", "picMuni", "lsvMunicipios", "txtNombreMunicipio")
/// and are found by them, and so are their labels.
///
/// The province says whether the municipality is chosen or typed (`ActivarMunicipio`). A province that is
/// found on leaving its box goes to `oDeclarante()`, whichever form it is: docs/reglas.md,
/// codigo-hallado-al-declarante.
class BloqueDeMunicipio : public QObject {
    Q_OBJECT
  public:
    struct Reglas {
        /// The codes that the record holds, as plain text.
        std::function<QString()> provinciaDelRegistro;
        std::function<QString()> municipioDelRegistro;
        /// Another province or municipality has been chosen; it stands in its boxes.
        std::function<void()> alElegir;
        /// Leaving its box, the code of the municipality was found; the name stands in its box.
        std::function<void()> alEncontrarMunicipio;
        /// Where the focus goes after a choice.
        std::function<QWidget&()> trasLaProvincia;
        std::function<QWidget&()> trasElMunicipio;
        /// True while leaving a box is to do nothing.
        std::function<bool()> cancelando;
    };

    BloqueDeMunicipio(Formulario& formulario, const Reglas& reglas);

    /// Puts the texts of the labels, and names lists and pictures after them.
    void PonerTextos();
    /// Puts the arrows on the pictures, as they are with or without the focus.
    void PonerImagenes();
    /// One of the lists is on the screen.
    [[nodiscard]] bool Eligiendo() const;

  private:
    const QWidget& m_formulario;
    ListaDeEleccion* m_provincias;
    ListaDeEleccion* m_municipios;
};
