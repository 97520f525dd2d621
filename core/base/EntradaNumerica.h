#pragma once

#include <QString>
#include <optional>

// Rules of the entry of numbers, with the separators of the regional settings. Points and commas stand in a
// text as they were typed, and mean something only when the whole is read:
//
// - The decimal separator of the settings is the decimal one, never a group.
// - Of two kinds the last one is the decimal one, and the others must make groups of three, all alike.
// - The other kind alone is a group where it makes whole groups of three ("1.234", "1.234.567": figures have
//   two decimals), and otherwise the decimal one ("12.5", "1000.50", "0.234").
// - Blanks, of whatever width, and the separator of thousands of the settings are groups.
//
// What cannot be read so ("1.23.4", "1,5.000") is no number: no digit is dropped or joined by a guess.

/// Digits that a mask has room for before its decimals: 11 for "##,###,###,##0.00".
[[nodiscard]] int EnterosDeMascara(QStringView mascara);

/// Whether a text can stand in a numeric box while it is worked on: a leading minus, digits, points and
/// commas in any order, and no more than `enteros` digits before the last of these. "", "-" and "1.23.4" can
/// too.
[[nodiscard]] bool EsEntradaNumerica(QStringView texto, int enteros);

/// The number that a whole text says; nothing when it says none, or one of more than `enteros` whole digits.
[[nodiscard]] std::optional<double> LeerEntrada(const QString& texto, int enteros);

/// What the character of a key brings into a numeric box: itself, or nothing for one that a number has not.
[[nodiscard]] QString TeclaNumerica(QChar tecla);

/// The number that a text says, with nothing but digits, the decimal separator of the settings and a minus.
/// Blanks and a euro sign around it and a plus go. Empty for what is no number.
[[nodiscard]] QString LimpiarNumero(const QString& texto);
