#pragma once

#include <QObject>
#include <QString>

class QMenu;

/// The access key of a menu in the bar: it is the menu's while the menu is on. One that is off gives it up,
/// so that a button of the same letter answers to it; its title goes on saying the same.
class TeclaDeMenu : public QObject {
    Q_OBJECT
  public:
    /// Belongs to the menu.
    explicit TeclaDeMenu(QMenu& menu);

    /// Gives the menu its title, with the mark of its access key.
    void PonerTitulo(const QString& titulo);

  private:
    void Mostrar();

    QMenu& m_menu;
    QString m_titulo;
};
