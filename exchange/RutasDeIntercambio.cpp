#include "exchange/RutasDeIntercambio.h"

#include "shell/CarpetaPrograma.h"

using namespace Qt::StringLiterals;

QString RutaDeDeclarantes() { return EnCarpetaPrograma(u"Declaran.txt"_s); }

QString RutaDeErrores() { return EnCarpetaPrograma(u"Errores.log"_s); }
