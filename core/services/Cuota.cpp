#include "core/services/Cuota.h"

Centesimas CuotaDe(Centesimas base, Millonesimas tipo) {
    return Centesimas::DePublico(Redondear(base.Redondeado() * tipo.Redondeado(), 2));
}
