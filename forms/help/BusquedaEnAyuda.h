#pragma once

#include <QWidget>

#include "core/help/TemasDeAyuda.h"

class QLabel;
class QLineEdit;
class QListWidget;

/// The page of the help window that searches all topics: a box, and the topics that hold its text.
class BusquedaEnAyuda : public QWidget {
    Q_OBJECT
  public:
    explicit BusquedaEnAyuda(QWidget* padre = nullptr);

    /// Searches that set from here on, with the texts of the language in force; nothing is searched yet.
    void PonerTemas(const TemasDeAyuda& temas);

    /// Takes the focus into the box.
    void Empezar();

  Q_SIGNALS:
    /// A topic of the results has been chosen, and what was looked for.
    void Elegido(const QString& tema, const QString& texto);

  private:
    void Buscar();
    void Elegir();

    TemasDeAyuda m_temas;
    QLineEdit* m_texto;
    QLabel* m_cuenta;
    QListWidget* m_resultados;
};
