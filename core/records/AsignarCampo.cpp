#include "core/records/AsignarCampo.h"

#include <array>
#include <variant>

#include "core/records/cZTDeclarante.h"
#include "core/records/cZTEstablecimientos.h"
#include "core/run/GeneralZT.h"

namespace {

template <class Registro>
struct Campo {
    QStringView nombre;
    std::variant<QString Registro::*, qint16 Registro::*, qint32 Registro::*> miembro;
};

using D = cZTDeclarante;
constexpr std::array kDelDeclarante{
    Campo<D>{u"NOMBRE", &D::Nombre},       Campo<D>{u"NIF", &D::NIF},        Campo<D>{u"SIGLAS", &D::Siglas},
    Campo<D>{u"DOMICILIO", &D::Domicilio}, Campo<D>{u"NUMERO", &D::Numero},  Campo<D>{u"LETRA", &D::Letra},
    Campo<D>{u"MANO", &D::Mano},           Campo<D>{u"ESCAL", &D::Escal},    Campo<D>{u"PISO", &D::Piso},
    Campo<D>{u"PROVIN", &D::Provin},       Campo<D>{u"CODMUN", &D::CMuni},   Campo<D>{u"MUNICI", &D::Munici},
    Campo<D>{u"CPOST", &D::CPost},         Campo<D>{u"TELPRE", &D::Telepre}, Campo<D>{u"TELNUM", &D::TelNum}};

using E = cZTEstablecimientos;
constexpr std::array kDelEstablecimiento{Campo<E>{u"CIM", &E::CIM}, Campo<E>{u"DOMICILIO", &E::Domicilio},
                                         Campo<E>{u"PROVIN", &E::Provin}, Campo<E>{u"CODMUN", &E::CMuni},
                                         Campo<E>{u"MUNICI", &E::Munici}};

void Poner(QString& campo, const Valor& nuevo) { campo = nuevo.aTexto(); }
void Poner(qint16& campo, const Valor& nuevo) { campo = BC(nuevo).aEntero16(); }
void Poner(qint32& campo, const Valor& nuevo) { campo = BC(nuevo).aEntero32(); }

Valor Anterior(const QString& campo) { return campo; }
template <class Entero>
Valor Anterior(Entero campo) {
    return CB(campo);
}

template <class Registro, class Tabla>
Valor Asignar(Registro& registro, const Tabla& campos, const QString& nombre, const Valor& nuevo,
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
        return Asignar(oEstablecimientos(), kDelEstablecimiento, campo, nuevo, Valor());
    }
    if (modo == kModoDeclarante) {
        return Asignar(oDeclarante(), kDelDeclarante, campo, nuevo, nuevo);
    }
    return nuevo;
}
