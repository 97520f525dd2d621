#pragma once

#include <QDir>
#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

class QWidget;

/// The guided tour of the program: it works the real forms through key and mouse events, as a user would,
/// and saves a picture of every screen.
class Visita {
  public:
    /// Pictures go to `salida`, which is made if need be.
    explicit Visita(const QString& salida);

    /// Walks through the first run in that language ("C" or "E") on a program folder without data.
    void Recorrer(const QString& idioma);

    /// Pictures saved so far.
    [[nodiscard]] const QStringList& Imagenes() const { return m_imagenes; }

  private:
    using Paso = std::function<void(QWidget&)>;

    /// What is typed into one box.
    struct Casilla {
        QString nombre;
        QString texto;
    };

    /// A declaration: year, quarter, the boxes of each establishment, and the total worked out by hand.
    struct Ejemplo {
        QString ejercicio;
        int periodo = 0;
        std::vector<std::vector<Casilla>> establecimientos;
        QString total;
    };

    void PrimerArranque();
    void Guardar(const QString& pantalla);
    /// Runs `paso` as soon as the form of that name is on the screen; for forms shown modally.
    void CuandoAparezca(const QString& formulario, const Paso& paso);
    void AcercaDe();
    void Avisos();
    void NuevoDeclarante();
    void NuevosEstablecimientos();
    void Declaraciones();
    void Declarar(const Ejemplo& ejemplo);
    void NuevaDeclaracion(const Ejemplo& ejemplo);
    void Anexos(const Ejemplo& ejemplo);
    void Comprobar(const QString& total);

    /// The form of that name, which has to be on the screen.
    [[nodiscard]] QWidget& EnPantalla(const QString& nombre) const;
    /// Types into a box of the form, from an empty one, and leaves it by Tab.
    void Teclear(QWidget& formulario, const QString& caja, const QString& texto) const;
    void Pulsar(QWidget& formulario, const QString& boton) const;

    QDir m_salida;
    QString m_idioma;
    QStringList m_imagenes;
};
