#pragma once

#include <QString>
#include <optional>

// Rules of the entry of numbers, with the separators of the regional settings. A text in the course of entry
// has digits, one decimal separator and one leading minus at most; separators of thousands stand in it as
// the mask has put them, or where changes have left them, and mean nothing.

/// Digits that a mask has room for before its decimals: 11 for "##,###,###,##0.00".
[[nodiscard]] int EnterosDeMascara(QStringView mascara);

/// Whether a text can stand in a numeric box while it is worked on: "", "-" and "," can too.
[[nodiscard]] bool EsEntradaNumerica(QStringView texto, int enteros);

/// The number that such a text says; nothing when it says none.
[[nodiscard]] std::optional<double> LeerEntrada(QStringView texto);

/// What the character of a key brings into a numeric box: the comma gives the decimal separator. Empty for a
/// character that a number has not.
[[nodiscard]] QString TeclaNumerica(QChar tecla);

/// A number that comes from elsewhere, with nothing but digits, decimal separator and minus: blanks and a
/// euro sign around it go, and so do thousands separated by threes, with the separator of the settings or by
/// blanks. Empty for everything else, such as "1.2" or "1,234.56" with Spanish settings: nothing is guessed.
[[nodiscard]] QString LimpiarNumero(const QString& texto);
