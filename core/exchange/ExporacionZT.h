#pragma once

class EscritorDeLineas;
class PantallaDeExportacion;

// The export: writes the exchange file of the declarants in `oExportaciones().vBufferDtes`.

/// Writes the declarants into the file of the screen, having asked whether to write over one that exists; in
/// the language without a text for that question, and for a name that no file can bear, the missing text is
/// the failure (326). What a failure leaves behind is a file with the lines written so far.
void ExportarDeclarantes(PantallaDeExportacion& pantalla);

/// Writes the lines of the declarants, one by one.
void ExportarDeclarantesSolo(EscritorDeLineas& fichero, PantallaDeExportacion& pantalla);
