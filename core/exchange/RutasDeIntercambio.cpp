#include "core/exchange/RutasDeIntercambio.h"

#include "core/run/Entorno.h"

using namespace Qt::StringLiterals;

QString RutaDeDeclarantes() { return EnCarpetaPrograma(u"Declaran.txt"_s); }

QString RutaDeErrores() { return EnCarpetaPrograma(u"Errores.log"_s); }
