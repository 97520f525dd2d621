#include "forms/runtime/Gemelos.h"

#include "forms/widgets/BotonImagen.h"

void NombrarGemelo(BotonImagen& imagen, const QAbstractButton& boton) {
    const QString nombre = boton.text().remove(u'&').trimmed();
    imagen.setAccessibleName(nombre);
    imagen.setToolTip(nombre);
}
