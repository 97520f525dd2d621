#include "printing/cZTImprimir.h"

#include "base/Instancias.h"

cZTImprimir& oImprimir() { return InstanciaUnica<cZTImprimir>(); }
