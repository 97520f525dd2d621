#pragma once

#include <QString>
#include <QStringView>
#include <span>
#include <type_traits>
#include <variant>

#include "core/base/Formatos.h"
#include "core/base/Tabla.h"

/// How the value of a field is taken from the store: as it is, in capitals, or through a mask of digits.
inline Valor TalCual(const Valor& valor) { return valor; }
inline Valor EnMayusculas(const Valor& valor) { return valor.aTexto().toUpper(); }
inline Valor ConDosCifras(const Valor& valor) { return Formatear(valor, u"00"); }
inline Valor ConCincoCifras(const Valor& valor) { return Formatear(valor, u"00000"); }

/// A field of a record of the program: the row of its table.
template <class Clase>
struct CampoDeRegistro {
    /// Element of the record of the server.
    int columna = 0;
    /// Name by which the forms change it, in capitals.
    QStringView nombre;
    std::variant<QString Clase::*, qint16 Clase::*, qint32 Clase::*> miembro;
    Valor (*leer)(const Valor&) = TalCual;
};

/// The table of a record.
template <class Clase>
using CamposDe = std::span<const CampoDeRegistro<Clase>>;

inline void Tomar(QString& campo, const Valor& valor) { campo = valor.aTexto(); }
inline void Tomar(qint16& campo, const Valor& valor) { campo = valor.aEntero16(); }
inline void Tomar(qint32& campo, const Valor& valor) { campo = valor.aEntero32(); }

/// Takes the fields from the record of the server.
template <class Clase>
void CargarCampos(Clase& registro, CamposDe<Clase> campos, const Registro& fila) {
    for (const auto& campo : campos) {
        const Valor valor = campo.leer(Elemento(fila, campo.columna));
        std::visit([&](auto miembro) { Tomar(registro.*miembro, valor); }, campo.miembro);
    }
}

/// Leaves the fields empty, numbers at 0.
template <class Clase>
void VaciarCampos(Clase& registro, CamposDe<Clase> campos) {
    for (const auto& campo : campos) {
        std::visit(
            [&](auto miembro) { registro.*miembro = std::remove_cvref_t<decltype(registro.*miembro)>(); },
            campo.miembro);
    }
}

/// Puts the fields into the record of the server, which has room for them.
template <class Clase>
void PonerCampos(const Clase& registro, CamposDe<Clase> campos, Registro& fila) {
    for (const auto& campo : campos) {
        std::visit(
            [&](auto miembro) { fila.at(static_cast<std::size_t>(campo.columna)) = registro.*miembro; },
            campo.miembro);
    }
}
