#pragma once

#include <QStringView>

/// Check of the retailer identification code `CIM`: eight characters, two digits that are not "00", one of
/// E, C, S, V, one of S, P, U, M, three more characters, and a check letter.
///
/// The first seven characters give two digits each (0 to 9: "00" to "09", A to Z: "10" to "35"); the check
/// letter, the last character, stands in "TRWAGMYFPDXBNJZSQVHLCKE" at the remainder of that number by 23, the
/// first place being 0. A code of another length is checked as far as its positions go.
///
/// Raises 13 where the rule converts what is no number: no characters at all, a first pair that is no number
/// (a digit and then something else), or a character outside 0 to 9 and A to Z among the first seven.
bool ComprobarFormatoCIM(QStringView cim);

/// The check letter of the first characters of a code (seven of them in a good one). Raises 13 as above.
QChar LetraDeControlCIM(QStringView primeros);
