#include "forms/runtime/ListaDeEleccion.h"

#include <QEvent>
#include <QLineEdit>
#include <utility>

#include "core/base/Conversiones.h"
#include "core/base/Formatos.h"
#include "core/run/GeneralZT.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/runtime/SegundoClic.h"
#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/Imagenes.h"
#include "forms/widgets/ListaZT.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView kMascara = u"00";

}  // namespace

ListaDeEleccion::ListaDeEleccion(Formulario& formulario, Codigo codigo, const Controles& controles,
                                 Reglas reglas)
    : QObject(&formulario.Ventana()), m_codigo(codigo), m_c(controles), m_reglas(std::move(reglas)) {
    m_c.lista.hide();
    Conectar(formulario, &m_c.imagen, &BotonImagen::clicked, [this] { Abrir(); });
    AlRecibirFoco(formulario, &m_c.imagen, [this] { PonerImagen(); });
    AlPerderFoco(formulario, &m_c.imagen, [this] { PonerImagen(); });

    Conectar(formulario, &m_c.lista, &ListaZT::Click, [this] {
        SegundoClic::Tragar();
        Elegir();
        Cerrar(m_reglas.trasClic());
    });
    connect(&m_c.lista, &ListaZT::KeyPress, this, [this, &formulario](int& keyAscii) {
        if (!formulario.Descargado()) {
            Evento([&] { TeclaEnLista(keyAscii); });
        }
    });
    AlPerderFoco(formulario, &m_c.lista, [this] { m_c.lista.hide(); });

    AlPerderFoco(formulario, &m_c.caja, [this] { AlDejarLaCaja(); });
    m_c.caja.installEventFilter(this);
}

bool ListaDeEleccion::Abierta() const { return m_c.lista.isVisible(); }

void ListaDeEleccion::Abrir() {
    if (m_codigo == Codigo::Letras) {
        DesplegarLista(m_c.lista, m_c.imagen, m_c.lista.Buscar(m_c.caja.text()));
    } else {
        MostrarLista(m_c.lista, m_c.imagen, m_c.caja);
    }
}

void ListaDeEleccion::Nombrar(const QString& nombre) {
    m_c.lista.setAccessibleName(nombre);
    m_c.imagen.setAccessibleName(nombre);
    m_c.imagen.setToolTip(nombre);
}

void ListaDeEleccion::PonerImagen() {
    m_c.imagen.setIcon(ilsMDI16(m_c.imagen.hasFocus() ? Imagen16::FlechaConFoco : Imagen16::Flecha));
}

bool ListaDeEleccion::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::FocusIn) {
        m_conFoco = true;
    }
    return QObject::eventFilter(objeto, evento);
}

QString ListaDeEleccion::ClaveDe(const QString& codigo) const {
    return m_codigo == Codigo::Letras ? codigo : u'c' + NumeroATexto(ValorInicial(codigo));
}

QString ListaDeEleccion::EnCaja(const QString& codigo) const {
    return m_codigo == Codigo::Letras ? codigo : Formatear(codigo, kMascara);
}

void ListaDeEleccion::Elegir() {
    if (m_c.lista.Cuenta() == 0) {
        return;
    }
    const int elegido = m_c.lista.Seleccionado();
    const QString clave = m_c.lista.Clave(elegido);
    if (clave != ClaveDe(m_reglas.codigoDelRegistro())) {
        m_c.nombre.setText(m_c.lista.Texto(elegido).toUpper());
        m_c.caja.setText(EnCaja(m_codigo == Codigo::Letras ? clave : clave.mid(1)));
        m_reglas.alElegir();
    }
}

void ListaDeEleccion::Cerrar(QWidget& siguiente) {
    // The focus goes on first: from a list that hides with it, the toolkit would move it by itself.
    siguiente.setFocus(Qt::OtherFocusReason);
    m_c.lista.hide();
}

void ListaDeEleccion::TeclaEnLista(int& keyAscii) {
    if (keyAscii == ListaZT::kIntro) {
        keyAscii = 0;
        Elegir();
        Cerrar(m_reglas.trasIntro());
    } else if (keyAscii == ListaZT::kEscape) {
        keyAscii = 0;
        Cerrar(m_c.caja);
    } else {
        keyAscii = CaracterAceptable(keyAscii);
    }
}

void ListaDeEleccion::AlDejarLaCaja() {
    // Moves of the focus within a move can take it from a box before the box has got it.
    if (!std::exchange(m_conFoco, false) || m_reglas.cancelando()) {
        return;
    }
    const QString nombre = ExisteValorLista(m_c.lista, ClaveDe(m_c.caja.text())).toUpper();
    m_c.nombre.setText(nombre);
    if (!nombre.isEmpty()) {
        m_reglas.alEncontrar();
        return;
    }
    Abrir();
    if (m_codigo == Codigo::Numero && m_c.caja.text() == kMascara) {
        m_c.caja.clear();
    }
}
