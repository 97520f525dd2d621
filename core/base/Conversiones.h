#pragma once

#include <QString>
#include <QStringView>
#include <QtGlobal>
#include <optional>

/// Digits that numbers are taken by, as people see them.
inline constexpr int kDigitosSignificativos = 15;

/// To a 16-bit integer, halves to even. Raises 6 outside -32768 to 32767.
qint16 DobleAEntero16(double d);

/// To a 32-bit integer, halves to even. Raises 6 outside the range.
qint32 DobleAEntero32(double d);

/// Reads a number typed by a user, with the separators of the regional settings: blanks around, one sign
/// before or after, digits with separators of thousands before the decimal separator, an exponent.
/// Nothing when the text is not a number.
std::optional<double> LeerNumero(QStringView texto);

/// Whether the character is one of "0" to "9"; digits of other scripts are none.
bool EsDigito(QChar c);

/// The numeric test of a text.
bool EsNumerico(QStringView texto);

/// Strict conversion of a text to a number. Raises 13 when it is not one.
double TextoADoble(QStringView texto);

/// The leading-digits value: blanks are skipped, then as much as reads as a number with a decimal POINT,
/// whatever the regional settings; 0 when nothing does. Never raises.
double ValorInicial(QStringView texto);

/// The number as plain text: up to 15 significant digits, no trailing zeros, no separators of thousands,
/// the decimal separator of the regional settings. Very large and very small numbers take an exponent.
QString NumeroATexto(double d);
