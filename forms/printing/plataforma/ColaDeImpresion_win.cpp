#include "forms/printing/plataforma/ColaDeImpresion.h"

// The toolkit learns of a refused job at once, and ends the document with a failure.
QString FalloDelUltimoTrabajo() { return {}; }
