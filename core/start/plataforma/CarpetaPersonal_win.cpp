#include "core/start/plataforma/CarpetaPersonal.h"

// The system itself names it.
void AsegurarCarpetaPersonal() {}
