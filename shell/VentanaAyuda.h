#pragma once

#include <QMainWindow>
#include <QUrl>

class QLineEdit;
class QListWidget;
class QTextBrowser;

/// The help window: contents on the left, the topic on the right, back, forward, first topic, and a search
/// in the topic. There is one; it stays open beside the program's forms.
class VentanaAyuda : public QMainWindow {
    Q_OBJECT
  public:
    /// The window, made above `duena` on first use.
    static VentanaAyuda& Unica(QWidget& duena);

    /// Shows a topic, reading the contents and the texts anew in the language in force. A topic that is
    /// missing is told in its place, with the name of the file.
    void Mostrar(const QUrl& tema);

  private:
    explicit VentanaAyuda(QWidget* duena);
    void LeerContenido(const QUrl& tema);
    void Buscar();
    void IrA(const QUrl& tema);

    QListWidget* m_contenido;
    QTextBrowser* m_texto;
    QLineEdit* m_busqueda;
    QAction* m_atras;
    QAction* m_adelante;
    QAction* m_inicio;
    QUrl m_primero;
};
