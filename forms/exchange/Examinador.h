#pragma once

#include <QString>

class QWidget;

/// What the chosen file is for.
enum class UsoDelFichero { Leer, Escribir };

/// Lets the user choose another file than `actual` in the file dialog "Examinador", which starts in its
/// folder with its name. Gives `actual` back when the user cancels. Whether to write over a file that exists
/// is asked elsewhere.
[[nodiscard]] QString ExaminarFichero(QWidget& formulario, const QString& actual, UsoDelFichero uso);
