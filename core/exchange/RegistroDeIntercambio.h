#pragma once

#include <QString>
#include <QStringView>
#include <array>

#include "core/base/Tabla.h"
#include "core/services/svrZELT/CamposDeDeclarante.h"

// The line of the exchange file of declarants: 140 characters of the 8-bit code page, fields at fixed places,
// no separators. The writer pads and the reader cuts by the one table below.

/// How the writer pads a field: text with blanks on the right, numbers with zeros on the left.
enum class ClaseDeCampo { Texto, Numero };

/// A field of the line. Its place in the table, from 0, is one less than its element in the record of the
/// declarant's server and than its row in the record of the reader.
struct CampoDeIntercambio {
    /// Position of its first character, from 1, and its width in characters.
    int posicion = 0;
    int ancho = 0;
    /// Name in the record of the reader.
    QStringView nombre;
    ClaseDeCampo clase = ClaseDeCampo::Texto;
};

inline constexpr std::array kCamposDeIntercambio{
    CampoDeIntercambio{1, 9, u"NIF", ClaseDeCampo::Texto},
    CampoDeIntercambio{10, 40, u"Nombre", ClaseDeCampo::Texto},
    CampoDeIntercambio{50, 2, u"Siglas", ClaseDeCampo::Texto},
    CampoDeIntercambio{52, 30, u"ViaPublica", ClaseDeCampo::Texto},
    CampoDeIntercambio{82, 5, u"Numero", ClaseDeCampo::Numero},
    CampoDeIntercambio{87, 2, u"Letra", ClaseDeCampo::Texto},
    CampoDeIntercambio{89, 2, u"Escalera", ClaseDeCampo::Texto},
    CampoDeIntercambio{91, 2, u"Piso", ClaseDeCampo::Texto},
    CampoDeIntercambio{93, 3, u"Mano", ClaseDeCampo::Texto},
    CampoDeIntercambio{96, 2, u"Provincia", ClaseDeCampo::Numero},
    CampoDeIntercambio{98, 5, u"CP", ClaseDeCampo::Numero},
    CampoDeIntercambio{103, 3, u"CM", ClaseDeCampo::Numero},
    CampoDeIntercambio{106, 25, u"Municipio", ClaseDeCampo::Texto},
    CampoDeIntercambio{131, 3, u"Prefijo", ClaseDeCampo::Numero},
    CampoDeIntercambio{134, 7, u"Telefono", ClaseDeCampo::Numero}};

inline constexpr int kLargoDeRegistro =
    kCamposDeIntercambio.back().posicion + kCamposDeIntercambio.back().ancho - 1;

/// Rows of the record of the reader: those of the elements of the declarant's server.
inline constexpr int kFilaNif = svrZELT::CamposDeDeclarante::kNIF;
inline constexpr int kUltimaFilaDeRegistro = svrZELT::CamposDeDeclarante::kElementos - 1;
/// Columns of the record of the reader.
inline constexpr int kColumnaValor = svrZELT::RegistroDeIntercambio::kValor;
inline constexpr int kColumnaNombre = svrZELT::RegistroDeIntercambio::kNombre;

/// `valor` and pad characters up to `ancho`. A value longer than the width is first cut to 20 characters,
/// whatever the width; raises 5 if it is still too long then.
[[nodiscard]] QString RellenarTexto(const QString& valor, int ancho, QChar relleno);

/// `valor` as a 32-bit integer, with pad characters on the left up to `ancho`; one with more digits is given
/// whole. Raises what the conversion raises, for the empty text too.
[[nodiscard]] QString RellenarNumero(const Valor& valor, int ancho, QChar relleno);

/// The line of a declarant, without its end. `declarante` is the record of `svrZELT::cZTDeclarante`. It is
/// longer than 140 characters when a number has more digits than its field.
[[nodiscard]] QString LineaDeDeclarante(const Registro& declarante);

/// The record of a line: rows 0 to 17; rows 1 to 15 hold the fields in their order, in column 0 the value as
/// cut out of the line and in column 1 the name; rows 0, 16 and 17 are Empty. Nothing is checked: a short
/// line gives empty or cut values, a long one loses its tail.
[[nodiscard]] Tabla TrocearRegistro(QStringView linea);
