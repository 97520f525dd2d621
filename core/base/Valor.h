#pragma once

#include <QString>
#include <concepts>
#include <variant>

/// A mixed value: what the data services give and take, and what crosses between text boxes and fields.
///
/// It is Empty (never assigned), Null (no data), a Boolean, a 16- or 32-bit integer, a 64-bit float or a
/// text. The converters are strict and raise the numbers that users know (see `NumError`):
///  - text that is not a number by the regional settings raises 13 (type mismatch);
///  - a number outside the range of the integer raises 6 (overflow); halves round to even;
///  - Null raises 94; Empty is 0 and the empty text; True is -1.
class Valor {
  public:
    Valor() noexcept = default;
    template <std::same_as<bool> T>
    Valor(T b) noexcept : m_dato(b) {}
    Valor(qint16 n) noexcept : m_dato(n) {}
    Valor(qint32 n) noexcept : m_dato(n) {}
    Valor(double d) noexcept : m_dato(d) {}
    Valor(QString s) noexcept : m_dato(std::move(s)) {}
    /// The Null value.
    static Valor Nulo() noexcept;

    [[nodiscard]] bool EsVacio() const noexcept { return std::holds_alternative<std::monostate>(m_dato); }
    [[nodiscard]] bool EsNulo() const noexcept { return std::holds_alternative<TNulo>(m_dato); }
    [[nodiscard]] bool EsTexto() const noexcept { return std::holds_alternative<QString>(m_dato); }

    /// The numeric test: True for numbers, Booleans, Empty, and text that reads as a number.
    [[nodiscard]] bool EsNumerico() const;

    [[nodiscard]] qint16 aEntero16() const;
    [[nodiscard]] qint32 aEntero32() const;
    [[nodiscard]] double aDoble() const;
    /// Numbers with up to 15 digits and the decimal separator of the settings; Booleans as "Verdadero" and
    /// "Falso".
    [[nodiscard]] QString aTexto() const;

    /// Identity of kind and content (not the loose comparison of the run-time).
    friend bool operator==(const Valor&, const Valor&) = default;

  private:
    struct TNulo {
        friend bool operator==(TNulo, TNulo) = default;
    };
    std::variant<std::monostate, TNulo, bool, qint16, qint32, double, QString> m_dato;
};
