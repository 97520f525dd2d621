#pragma once

#include <QString>

namespace SvrKLComunLib {

/// Common tools. Made for one call.
class cMiscelaneos {
  public:
    /// Language of what it gives: 0 Castellano, 1000 Euskera.
    qint16 idioma = 0;
    /// Path of the reference store, which holds the authority's name and addresses.
    QString mdblec;
    /// Handle of the calling window, over which the description of the service is modal.
    qint32 Parent = 0;

    /// Opens the on-line assistance in the browser, in that language: the service's address in the reference
    /// store with "idioma=c" or "idioma=e" added to its query. Raises 3049 when the store lacks the address.
    void AccesoAyuOnline() const;

    /// Shows, modal to `Parent`, the description of the assistance service in that language, with the address
    /// of the page that tells more. Raises 3049 when the reference store lacks the address.
    void MostrarOnlineInfo() const;

    /// Name of the authority's tax department in that language, for the printed forms. Raises 3049 when the
    /// reference store lacks it.
    [[nodiscard]] QString HaciendaFiscalidad() const;

    /// Whether the text is a well-formed Spanish tax number of nine characters with its right control
    /// character. Anything else (lower case, blanks, short or overlong text) is False, never a failure.
    ///
    /// Public rules (Real Decreto 1065/2007, articles 18 to 22; Orden EHA/451/2008):
    ///  - natural persons: eight digits and a letter, that of the number modulo 23 in
    ///    "TRWAGMYFPDXBNJZSQVHLCKE";
    ///  - K, L or M, seven digits and the letter of the seven digits by the same rule;
    ///  - foreigners: X, Y or Z, seven digits and the letter of the number with 0, 1 or 2 in the place of
    ///    the first letter;
    ///  - entities: a letter of "ABCDEFGHJNPQRSUVW", seven digits and a control. Its value is the tens'
    ///    complement of the sum of the digits in even places and of the digits of the doubles of those in
    ///    odd places. It is written as a digit for A, B, E and H, as a letter of "JABCDEFGHI" for N, P, Q,
    ///    R, S and W, and as either for the others.
    [[nodiscard]] bool ValidaNifCif(const QString& nif) const;
};

}  // namespace SvrKLComunLib
