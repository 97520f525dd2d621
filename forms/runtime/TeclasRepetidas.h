#pragma once

#include <QHash>
#include <QKeyEvent>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QWidget>

/// What a held key does all over the program: it types and it moves, and it presses nothing twice.
///
/// While one of these lives, no button, picture, list, link, menu or message box answers to the repeats of a
/// key that activates (Enter, Space, Escape, a letter of a menu), and no access key or shortcut to its own.
/// Text goes on repeating: blanks in a box, lines in a text of several.
///
/// A question that comes up while Enter or Space is down takes none of them until they have been let go.
class TeclasRepetidas : public QObject {
    Q_OBJECT
  public:
    TeclasRepetidas();

    /// Says of a window, before it is shown, that it is a question. A message box of the platform with
    /// several buttons is one without being told.
    static void EsPregunta(QWidget& ventana, bool pregunta);

    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    void AlMostrar(QWidget& ventana);
    /// Whether the press is to go no further.
    bool AlApretar(QObject* objeto, const QKeyEvent& tecla);
    void AlSoltar(const QKeyEvent& tecla);

    /// Leaves out of those to be let go the ones that nothing has been heard of for as long as a held key is
    /// silent: what took the keyboard away (a menu that closes) has taken their release too.
    void OlvidarLasCalladas();

    /// The keys of Enter and Space that are down, with the moment of their last press or repeat.
    QHash<int, qint64> m_abajo;
    /// The question that came up last while keys were down, and those that were not let go since.
    QPointer<QWidget> m_pregunta;
    QSet<int> m_porSoltar;
    /// The key that is just looked up among the shortcuts is a repeat.
    bool m_atajoRepetido = false;
};
