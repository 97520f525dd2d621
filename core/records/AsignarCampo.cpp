#include "core/records/AsignarCampo.h"

#include "core/records/cZTDeclarante.h"
#include "core/records/cZTEstablecimientos.h"
#include "core/run/GeneralZT.h"

namespace {

void Poner(QString& campo, const Valor& nuevo) { Tomar(campo, nuevo); }
template <class Entero>
void Poner(Entero& campo, const Valor& nuevo) {
    Tomar(campo, BC(nuevo));
}

Valor Anterior(const QString& campo) { return campo; }
template <class Entero>
Valor Anterior(Entero campo) {
    return CB(campo);
}

template <class Clase>
Valor Asignar(Clase& registro, CamposDe<Clase> campos, const QString& nombre, const Valor& nuevo,
              const Valor& siNoExiste) {
    for (const auto& campo : campos) {
        if (campo.nombre == nombre) {
            return std::visit(
                [&](auto miembro) {
                    Valor anterior = Anterior(registro.*miembro);
                    Poner(registro.*miembro, nuevo);
                    return anterior;
                },
                campo.miembro);
        }
    }
    return siNoExiste;
}

}  // namespace

Valor AsignarCampo(qint16 modo, const QString& campo, const Valor& nuevo) {
    if (modo == kModoEstablecimiento) {
        return Asignar(oEstablecimientos(), cZTEstablecimientos::Campos(), campo, nuevo, Valor());
    }
    if (modo == kModoDeclarante) {
        return Asignar(oDeclarante(), cZTDeclarante::Campos(), campo, nuevo, nuevo);
    }
    return nuevo;
}
