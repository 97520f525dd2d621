#include "shell/CarpetaPrograma.h"

#include <QDir>

#include "shell/Entorno.h"

QString EnCarpetaPrograma(const QString& nombre) {
    return Entorno().CarpetaPrograma + QDir::separator() + nombre;
}
