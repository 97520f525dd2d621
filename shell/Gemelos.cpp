#include "shell/Gemelos.h"

#include "shell/BotonImagen.h"

void NombrarGemelo(BotonImagen& imagen, const QAbstractButton& boton) {
    const QString nombre = boton.text().remove(u'&').trimmed();
    imagen.setAccessibleName(nombre);
    imagen.setToolTip(nombre);
}
