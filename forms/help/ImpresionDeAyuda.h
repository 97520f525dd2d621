#pragma once

#include <QString>

class QTextDocument;
class QWidget;

/// Asks on which printer and prints a topic on it; nothing when the user cancels. `titulo` names the
/// spooler's job.
void ImprimirTema(const QTextDocument& tema, const QString& titulo, QWidget& ventana);
