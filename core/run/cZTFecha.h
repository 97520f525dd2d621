#pragma once

#include <QString>

/// Dates and the language of the program; one instance, `oFecha()`.
///
/// A date is a text in the format of the language in force ("dd/mm/yyyy" in Castellano, "yyyy/mm/dd" in
/// Euskera and wherever the code is not "C") or a whole number YYYYMMDD, 0 being no date and -1 a bad one.
class cZTFecha {
  public:
    /// The language code, "C" or "E"; empty on a fresh installation. Reading it also sets `OffsetIdioma`.
    [[nodiscard]] QString IDI() const;
    /// Keeps the code, stores it, and sets `OffsetIdioma`.
    void IDI(const QString& codigo);

    /// Stores the language code in the user's store.
    void ModificarIdioma(const QString& codigo) const;
    /// Reads the stored language code and puts it in force, which writes it back unchanged.
    void LeerIdioma();

    /// The text of an empty date: always the empty text, in both languages.
    [[nodiscard]] QString fecVacia() const;

    /// The year of a date as the platform's own date parsing reads it, whatever the language in force.
    /// Raises 13 for a text that is not a date.
    [[nodiscard]] qint32 miYear(const QString& s) const;

    /// True for the empty date and for a date that exists, in the format of `idioma` (that in force when
    /// empty), its year having four digits and not lying below `anoLimite` when one is given.
    [[nodiscard]] bool EsFecha(const QString& s, QString idioma = {}, qint16 anoLimite = 0) const;

    /// The number of a date text in `idioma` (that in force when empty): 0 for the empty date, -1 for a bad
    /// one.
    [[nodiscard]] qint32 StringToLong(const QString& s, qint16 anoLimite = 0, QString idioma = {}) const;

    /// The text of a date number in `idioma` (that in force when empty); the empty date for a number below 1
    /// or one that is no date. With `invertido` the number reads DDMMYYYY instead of YYYYMMDD.
    [[nodiscard]] QString LongToString(qint32 lFecha, bool invertido = false, QString idioma = {}) const;

    /// The Euskera ending after the day of the month in a full date: "ean", "an" or "n".
    [[nodiscard]] static QString SufijoFecha(qint16 intDia);

  private:
    QString m_idi;
    /// Text of an empty date in each language, and a language code for it. Nothing ever assigns them.
    QString m_vaciaCastellano;
    QString m_vaciaEuskera;
    QString m_idiVacia;
};

/// The shared instance.
cZTFecha& oFecha();
