#pragma once

#include <QObject>
#include <functional>

class CabeceraDeLista;
class Formulario;
class ListaZT;
class ParDeBotones;
class QWidget;
class Tabla;

/// The establishments of the current declarant on a screen: the list "lsvEstablecimientos" under its
/// headings, and the commands to make one, to change and to delete the selected one. The controls bear the
/// names that both screens give them and are found by them.
class BloqueDeEstablecimientos : public QObject {
    Q_OBJECT
  public:
    /// What the commands do.
    struct Ordenes {
        std::function<void()> nuevo;
        std::function<void()> datos;
        std::function<void()> eliminar;
    };

    BloqueDeEstablecimientos(Formulario& formulario, const Ordenes& ordenes);

    /// Puts the texts of headings and commands, and names the list after the title of the window.
    void PonerTextos();
    /// Gives the list its columns with the headings over them; `lblEstAnexos` heads one more, that of the
    /// products of the annexes.
    void PonerColumnas(CabeceraDeLista& cabecera, QWidget* lblEstAnexos = nullptr);
    /// The key of the establishment of a row of a buffer of them.
    [[nodiscard]] static qint32 Clave(const Tabla& establecimientos, int fila);
    /// Adds the establishment of a row of a buffer of them, and gives the number of its item. The column of
    /// the annexes is left empty.
    int Anadir(const Tabla& establecimientos, int fila);
    /// Changing and deleting take an establishment to be there.
    void HabilitarOrdenes(bool hay);
    /// Unloads the form and shows the selected establishment in its own.
    void AbrirElegido();

  private:
    Formulario& m_formulario;
    ListaZT& m_lista;
    ParDeBotones* m_nuevo;
    ParDeBotones* m_datos;
    ParDeBotones* m_eliminar;
};
