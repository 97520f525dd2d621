#pragma once

#include "tools/visita/Ejemplos.h"
#include "tools/visita/Mano.h"

// The stages of the guided tour, in the order in which it takes them.

/// First run, choice of the language, main window.
void PrimerArranque(Mano& mano);
/// The menus, the About screen, a question and the screen of an unexpected failure.
void MenusYAvisos(Mano& mano);
/// Keys the declarant and opens him on his empty list of declarations.
void NuevoDeclarante(Mano& mano, const DeclaranteDeEjemplo& ejemplo);
void NuevosEstablecimientos(Mano& mano, const DeclaranteDeEjemplo& ejemplo);
/// Keys a declaration, saves it, opens it again and compares with the total worked out by hand.
void Declarar(Mano& mano, const DeclaranteDeEjemplo& ejemplo, const DeclaracionDeEjemplo& declaracion);
/// Prints the selected declaration in its four copies.
void Imprimir(Mano& mano, const DeclaranteDeEjemplo& ejemplo, const DeclaracionDeEjemplo& declaracion);
/// Closes the open declarant.
void CerrarDeclarante(Mano& mano);
/// Exports all declarants, and imports the file again with two faulty lines added.
void Intercambio(Mano& mano);
/// A copy of the data, a change, and the copy restored.
void CopiaYRestauracion(Mano& mano);
/// The preferences with the language changed and back, and the dialogs of the update check.
void Preferencias(Mano& mano);
