#include "exchange/RutasDeIntercambio.h"

#include <QDir>

#include "shell/Entorno.h"

using namespace Qt::StringLiterals;

namespace {

QString EnCarpetaPrograma(const QString& nombre) {
    return Entorno().CarpetaPrograma + QDir::separator() + nombre;
}

}  // namespace

QString RutaDeDeclarantes() { return EnCarpetaPrograma(u"Declaran.txt"_s); }

QString RutaDeErrores() { return EnCarpetaPrograma(u"Errores.log"_s); }
