#pragma once

#include <QString>
#include <QWidget>

#include "core/base/Tabla.h"

class BotonImagen;
class ListaZT;
class QLabel;
class QLineEdit;

// General procedures of the forms: pick lists, selection and order of lists, entry fields. They hold no
// state. A pick list is hidden until asked for; its items have "c" and the code as key when the code is
// numeric, the code itself otherwise, and the name as text.

/// Fills the pick lists of kinds of way, provinces and municipalities from the reference store, the first two
/// in the language in force. A list that a form lacks is nullptr.
void InicializarListas(ListaZT* siglas, ListaZT* provincias, ListaZT* municipios);

/// Adds an item for every row of a result of free SQL: rows from 0, column 0 the code, column 1 the name.
/// Raises 13 for the Null buffer and 35602 for a code that is there already.
void MostrarDatosLista(ListaZT& lista, const Tabla& buffer);

/// Shows a control over its form at that place, in pixels of its parent; moved up and left, and made smaller
/// if need be, as far as it takes to see it whole.
void ActivarLista(QWidget& control, int left, int top);

/// Drops a pick list at the place of the picture that opens it, with item `elemento` selected (the first one
/// for 0) and in sight, and gives it the focus.
void DesplegarLista(ListaZT& lista, const QWidget& imagen, int elemento);

/// Drops a pick list of numeric codes at the item of the code in `caja`, or at the first one when the box is
/// empty or its code is not in the list. Always True.
bool MostrarLista(ListaZT& lista, BotonImagen& imagen, const QLineEdit& caja);

/// Text of the first item with that key ("c" included), or the empty text.
[[nodiscard]] QString ExisteValorLista(const ListaZT& lista, const QString& clave);

/// Puts its arrow on the picture of the order.
void PonerFlechaDeOrden(QLabel& picOrden);

/// Orders a list by sub-item `columna` and moves the picture `picOrden` to the right edge of the heading
/// label of that column, "lblCol1" on, which is looked for by its name in `form`. Column 0 ends the order and
/// hides the picture. With an empty list nothing happens.
void OrdenarColumna(ListaZT& lista, qint16 columna, QWidget& form, QWidget& picOrden);

/// Select and mark an item, when there is any. All scroll to it; the last two only in a visible list.
void SeleccionarPrimero(ListaZT& lista);
void SeleccionarUltimo(ListaZT& lista);
void SeleccionarElemento(ListaZT& lista, qint16 elemento);

/// For the event of receiving the focus: selects the whole text of a box; one whose name begins with "cnu"
/// also keeps its text in its `OldValue`.
void SeleccionarTexto(QWidget& control);
