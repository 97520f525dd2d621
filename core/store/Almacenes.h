#pragma once

// What the rest of the program may say about the open stores.

/// Closes every kept connection: before a file is replaced, and between tests.
void CerrarAlmacenes();

/// How long an action waits for other programs in all, in milliseconds; 5000 unless a test says otherwise.
/// Closes the kept connections.
void FijarEsperaDeAlmacen(int milisegundos);
int EsperaDeAlmacen();
