#pragma once

#include <QMainWindow>

#include "core/help/TemasDeAyuda.h"

class BusquedaEnAyuda;
class QLineEdit;
class QTabWidget;
class QTreeWidget;
class TextoAyuda;

/// The help window: on the left the contents and the search in all topics, on the right the topic, with
/// back, forward, first topic, search in the topic, print and size of the letters. There is one; it stays
/// open beside the program's forms and remembers nothing when it closes.
class VentanaAyuda : public QMainWindow {
    Q_OBJECT
  public:
    /// The window, made on first use and belonging to `duena`.
    static VentanaAyuda& Unica(QWidget& duena);

    /// Shows a topic of a help set; `primero` is the one that the button for the first topic gives. A window
    /// that was closed, or that showed another set, starts afresh in the language in force. While a dialog
    /// takes all input, the window comes above that dialog and can be used beside it.
    void Mostrar(const QString& carpeta, const QString& tema, const QString& primero);

    /// Turns a window that is open to another help set: to the topic that has the same place there.
    static void CambiarJuego(const QString& carpeta, const QString& primero);

  private:
    explicit VentanaAyuda(QWidget* duena);
    void CrearPaneles();
    void CrearBarra();
    QAction* CrearOrden(const QString& nombre, const QIcon& imagen, const QList<QKeySequence>& teclas,
                        void (VentanaAyuda::*orden)());
    void Empezar(const QString& carpeta);
    void PonerTextos();
    void PonerContenido();
    void PonerEncima();
    [[nodiscard]] qsizetype Lugar() const;

    void Seguir(const QString& tema);
    void AbrirHallazgo(const QString& tema, const QString& texto);
    void BuscarEnTema(bool haciaAtras);

    void mnuInicio_Click();
    void mnuImprimir_Click();
    void mnuBuscar_Click();
    void mnuSiguiente_Click();
    void mnuAnterior_Click();
    void mnuBuscarEnTodos_Click();
    void mnuAumentar_Click();
    void mnuReducir_Click();
    void mnuTamano_Click();
    void mnuCerrar_Click();

    TemasDeAyuda m_temas;
    QString m_primero;
    QTabWidget* m_fichas;
    QTreeWidget* m_contenido;
    BusquedaEnAyuda* m_enTodos;
    TextoAyuda* m_texto;
    QLineEdit* m_busqueda;
};
