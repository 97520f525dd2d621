#include "core/printing/cZTImprimir.h"

#include "core/base/Instancias.h"

cZTImprimir& oImprimir() { return InstanciaUnica<cZTImprimir>(); }
