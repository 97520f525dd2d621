#include "core/records/CambioDeOtro.h"

#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"

void AvisarDeCambioDeOtro(QStringView texto, QStringView titulo) {
    Mensaje(TextoPropio(texto), TextoPropio(titulo), true);
}
