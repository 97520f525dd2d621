#pragma once

#include <QObject>
#include <QString>
#include <functional>

class BotonImagen;
class Formulario;
class ListaZT;
class QLineEdit;
class QWidget;

/// A pick list at work on an entry form: the box of a code, the arrow picture beside it that drops the list,
/// the list, and the box that shows the name of the code.
///
/// A click of the picture, or Enter on it, drops the list at the item of the box. A click or Enter on an item
/// chooses it, Escape goes back to the box, other keys pass `CaracterAceptable` and look for an item; a list
/// that loses the focus hides. Leaving the box looks its code up: the name is shown, and an unknown code
/// drops the list.
class ListaDeEleccion : public QObject {
    Q_OBJECT
  public:
    /// Codes that are numbers have "c" in front in the keys of their items and two digits in the box; codes
    /// that are letters are the keys themselves.
    enum class Codigo { Numero, Letras };

    struct Controles {
        ListaZT& lista;
        BotonImagen& imagen;
        QLineEdit& caja;
        QLineEdit& nombre;
    };

    struct Reglas {
        /// The code that the record holds, as plain text.
        std::function<QString()> codigoDelRegistro;
        /// An item with another code than the record's has been chosen; it stands in the two boxes.
        std::function<void()> alElegir;
        /// Leaving the box, its code was found; the name stands in its box.
        std::function<void()> alEncontrar;
        /// Where the focus goes after a choice by click, and by Enter.
        std::function<QWidget&()> trasClic;
        std::function<QWidget&()> trasIntro;
        /// True while leaving the box is to do nothing.
        std::function<bool()> cancelando;
    };

    ListaDeEleccion(Formulario& formulario, Codigo codigo, const Controles& controles, Reglas reglas);

    /// The list is on the screen.
    [[nodiscard]] bool Abierta() const;
    /// Drops the list, as a click of the picture does.
    void Abrir();
    /// Names picture and list for screen readers, and the picture for its tool tip.
    void Nombrar(const QString& nombre);
    /// Puts the arrow on the picture, as it is with or without the focus.
    void PonerImagen();

    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    [[nodiscard]] QString ClaveDe(const QString& codigo) const;
    /// The code as its box shows it.
    [[nodiscard]] QString EnCaja(const QString& codigo) const;
    void Elegir();
    void Cerrar(QWidget& siguiente);
    void TeclaEnLista(int& keyAscii);
    void AlDejarLaCaja();

    Codigo m_codigo;
    Controles m_c;
    Reglas m_reglas;
    /// The box has got the focus since it last lost it.
    bool m_conFoco = false;
};
