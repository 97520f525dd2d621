#pragma once

#include <QString>

#include "core/base/Redondeo.h"
#include "core/base/Tabla.h"
#include "core/base/Valor.h"
#include "core/services/svrZELT/CamposDeDeclarante.h"

// General procedures that records and forms share and that need no window. They hold no state.

/// Drops (0) every key but the digits and the backspace (8). `KeyAscii` is the character code of the key.
void Keypress_Naturales(int& KeyAscii);

/// Turns a key into its capital and gives its code back if the character is accepted; 0 otherwise, but for
/// the backspace, which passes. The accepted set is digits, capitals with Ñ, and "
/// !$%&()*+,-./:;<=>?\_ºª¿¡çÇ".
qint16 CaracterAceptable(int KeyAscii);

/// Content of a text box for a numeric field: 0 for the empty text, otherwise the value as given.
Valor BC(const Valor& valor);

/// A numeric field for a text box: the empty text for a zero, otherwise the value as given. Raises 13 for
/// text that is not a number.
Valor CB(const Valor& valor);

/// Name of quarter 1 to 4 in the language in force; the empty text for any other number.
QString DameStringPeriodo(qint16 periodo);

/// The quarter ("1" to "4") whose name in the language in force is `texto`, or "Error".
Valor ObtenerPeriodo(const QString& texto);

/// The part of a path up to and including its last separator; empty when there is none.
QString Directorio(const QString& ruta);

/// Columns of the tables of codes behind the pick lists.
enum ColumnaDeCodigos : int { kColumnaCodigo, kColumnaTexto };

/// Runs a select on the reference store; records in rows 0 and on, Null when there are none.
void CargarResultado(const QString& sql, Tabla& buffer);

/// Reads the range of accepted years and quarters into the environment. Raises 9 when the store gives fewer
/// than four numbers.
void InicializarDatosGenerales();
/// The same from a record that has been read.
void InicializarDatosGenerales(const Registro& datos);

/// Columns of the recent list.
using ColumnaDeRecientes = svrZELT::ListadoDeRecientes::Columna;

/// Declarants for the recent list, rows from 1, Null when the store holds none.
Tabla ExisteDec();

/// Names in capitals, in the language in force; empty for an unknown code.
QString ObtenerNombreProvincia(qint16 codigo);
QString ObtenerNombreMunicipio(qint16 codigo);
QString ObtenerNombreCalle(const QString& codigo);

/// Texts of the selects behind the pick lists, in the language in force for the first two.
QString SelectSiglas();
QString SelectProvincias();
QString SelectMunicipios();

/// Shows a failure on the screen: default pointer, then the error dialog.
void ShowError(const QString& formulario, const QString& evento, const QString& descripcion);

/// Shows a notice (`unBoton`) or a question and gives the answer: 1 Aceptar, 2 Cancelar.
qint16 Mensaje(const QString& texto, const QString& titulo, bool unBoton);
