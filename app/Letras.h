#pragma once

/// Gives the fonts "Arial" and "MS Sans Serif" a substitute of Arial's widths, for which the printed forms
/// and the screens are laid out.
void SustituirLetras();
