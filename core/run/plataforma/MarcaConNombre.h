#pragma once

/// Puts up the named mark "KLKL_ZELT", which stands while a copy of the program is alive, for outside tools
/// that want to know it. It forbids nothing: a second copy puts it up as well and runs like the first.
/// Failing to put it up is no failure.
void PonerMarcaConNombre() noexcept;

/// Takes the mark of this copy away.
void QuitarMarcaConNombre() noexcept;
