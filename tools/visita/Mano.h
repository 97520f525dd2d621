#pragma once

#include <QDir>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

class QWidget;

/// What is typed into one box.
struct Casilla {
    QString nombre;
    QString texto;
};

/// The hand of the guided tour: it works the real forms through key and mouse events, as a user would, and
/// saves pictures of the screen. Ends the tour where something is not as it has to be.
class Mano {
  public:
    using Paso = std::function<void(QWidget&)>;

    /// Pictures go to `salida`, which is made if need be; `idioma` is "C" or "E".
    Mano(const QString& salida, QString idioma);

    [[nodiscard]] const QString& Idioma() const { return m_idioma; }
    /// The pictures of this language bear it in their names.
    [[nodiscard]] QString Sufijo() const;
    [[nodiscard]] const QDir& Salida() const { return m_salida; }
    /// Pictures saved so far.
    [[nodiscard]] const QStringList& Imagenes() const { return m_imagenes; }

    /// Saves what the windows of the program show.
    void Guardar(const QString& pantalla);
    /// Runs `paso` as soon as the form of that name is on the screen; for forms shown modally.
    void CuandoAparezca(const QString& formulario, const Paso& paso) const;
    /// The form of that name, which has to be on the screen.
    [[nodiscard]] QWidget& EnPantalla(const QString& nombre) const;
    /// Types into a box of the form, from an empty one, and leaves it by Tab.
    void Teclear(QWidget& formulario, const QString& caja, const QString& texto) const;
    void Teclear(QWidget& formulario, const std::vector<Casilla>& casillas) const;
    /// Clicks a button, check box or option.
    void Pulsar(QWidget& formulario, const QString& boton) const;
    /// Clicks a label that works as a link.
    void PulsarEtiqueta(QWidget& formulario, const QString& etiqueta) const;
    /// Runs an entry of the main menu.
    void Elegir(const QString& entrada) const;

  private:
    QDir m_salida;
    QString m_idioma;
    QStringList m_imagenes;
};
