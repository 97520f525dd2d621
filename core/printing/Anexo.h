#pragma once

#include "core/base/Tabla.h"
#include "core/printing/Ejemplares.h"

// The annex of the return: a line by establishment and product, on the pages that follow page 1.
//
// Rows on a page, page breaks and the total of pages shown come from three rules that do not agree, and the
// form keeps all three (docs/reglas.md, paginas-del-anexo). No row is ever lost, but the last page can be
// empty and the total can be one more than the pages printed.

namespace impreso {

/// Annex pages of a declaration with that many lines: a new one at lines 1, 23, 46, 69 and so on.
int PaginasDeAnexo(int lineas);
/// The total of pages that each of them shows.
int TotalDePaginasMostrado(int lineas);

/// Adds the annex pages to the document, which has its page 1 and nothing else.
void ImprimirAnexo(TipoDeEjemplar Tipo, const Tabla& vBufferAnexo);

/// The blocks of an annex page, from top to bottom. Each leaves the font "Arial" behind, not bold. Those
/// that depend on the page ask the device for its number.
void ImprimirCabeceraAnexo(const Tabla& vBufferAnexo);
void ImprimirIdentificacionAnexo();
/// The table: every line has its row, also one without quantity and quota, whose quantity is then blank and
/// whose quota is a zero. The total is that of the page.
void ImprimirDesgloseAnexo(const Tabla& vBufferAnexo);
void ImprimirFirmaAnexo();

}  // namespace impreso
