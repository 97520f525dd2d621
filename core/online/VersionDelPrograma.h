#pragma once

/// Reads the version record of the program file into the environment and `oActOnline()`. Where there is
/// none, tells so in the platform's own message (always in Castellano at this moment) and goes on.
void ObtenerVersion();
