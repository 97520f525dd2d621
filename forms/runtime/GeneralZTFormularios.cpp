#include "forms/runtime/GeneralZTFormularios.h"

#include <QLabel>
#include <QLineEdit>
#include <QVariant>
#include <algorithm>

#include "core/base/Conversiones.h"
#include "core/base/Formatos.h"
#include "core/base/Procedimiento.h"
#include "core/run/GeneralZT.h"
#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/Imagenes.h"
#include "forms/widgets/ListaZT.h"

using namespace Qt::StringLiterals;

namespace {

/// Side in pixels of the picture of the order.
constexpr int kLadoDeOrden = 12;

constexpr char kValorAnterior[] = "OldValue";

void LlenarLista(ListaZT* lista, const QString& sql) {
    if (lista != nullptr) {
        Tabla buffer;
        CargarResultado(sql, buffer);
        MostrarDatosLista(*lista, buffer);
    }
}

/// Item whose key is that number after its first character; 0 when there is none.
int BuscarNumero(const ListaZT& lista, const QString& numero) {
    for (int i = 1; i <= lista.Cuenta(); ++i) {
        if (lista.Clave(i).mid(1) == numero) {
            return i;
        }
    }
    return 0;
}

void MostrarSeleccionado(ListaZT& lista) {
    if (lista.isVisible()) {
        lista.AsegurarVisible(lista.Seleccionado());
    }
}

/// Right edge of the heading label of a column, in pixels from the left edge of the list.
int BordeDeCabecera(const QWidget& form, qint16 columna) {
    int borde = 0;
    const QList<QWidget*> controles = form.findChildren<QWidget*>();
    for (const QWidget* control : controles) {
        const QString nombre = control->objectName().toUpper();
        for (qint16 j = 1; j <= columna; ++j) {
            if (nombre == u"LBLCOL"_s + QString::number(j)) {
                borde += control->width();
            }
        }
    }
    return borde;
}

}  // namespace

void InicializarListas(ListaZT* siglas, ListaZT* provincias, ListaZT* municipios) {
    Procedimiento(u"General.InicializarListas", [&] {
        LlenarLista(siglas, SelectSiglas());
        LlenarLista(municipios, SelectMunicipios());
        LlenarLista(provincias, SelectProvincias());
    });
}

void MostrarDatosLista(ListaZT& lista, const Tabla& buffer) {
    Procedimiento(u"General.MostrarDatosLista", [&] {
        for (int fila = 0; fila <= buffer.UltimaFila(); ++fila) {
            const Valor& codigo = buffer(kColumnaCodigo, fila);
            const QString clave = codigo.EsNumerico() ? u'c' + codigo.aTexto() : codigo.aTexto();
            lista.Anadir(clave, buffer(kColumnaTexto, fila).aTexto());
        }
    });
}

void ActivarLista(QWidget& control, int left, int top) {
    Procedimiento(u"General.ActivarLista", [&] {
        QPoint lugar(left, top);
        if (const QWidget* padre = control.parentWidget()) {
            control.resize(control.size().boundedTo(padre->size()));
            const QSize hueco = padre->size() - control.size();
            lugar = {std::clamp(left, 0, hueco.width()), std::clamp(top, 0, hueco.height())};
        }
        control.move(lugar);
        control.raise();
        control.show();
    });
}

void DesplegarLista(ListaZT& lista, const QWidget& imagen, int elemento) {
    lista.resize(lista.TamanoDesplegada());
    const QPoint lugar = lista.parentWidget()->mapFromGlobal(imagen.mapToGlobal(QPoint(0, 0)));
    ActivarLista(lista, lugar.x(), lugar.y());
    if (lista.Cuenta() > 0) {
        lista.Seleccionar(std::max(1, elemento));
        lista.AsegurarVisible(lista.Seleccionado());
    }
    lista.setFocus(Qt::OtherFocusReason);
}

bool MostrarLista(ListaZT& lista, BotonImagen& imagen, const QLineEdit& caja) {
    const QString codigo = caja.text();
    const int elemento = codigo.isEmpty() ? 0 : BuscarNumero(lista, NumeroATexto(ValorInicial(codigo)));
    DesplegarLista(lista, imagen, elemento);
    return true;
}

QString ExisteValorLista(const ListaZT& lista, const QString& clave) {
    return Procedimiento(u"General.ExisteValorLista", [&] {
        const int elemento = lista.Buscar(clave);
        return elemento == 0 ? QString() : lista.Texto(elemento);
    });
}

void PonerFlechaDeOrden(QLabel& picOrden) {
    PonerDibujo(picOrden, ilsMDI16(Imagen16::Orden), kLadoDeOrden);
    picOrden.resize(kLadoDeOrden, kLadoDeOrden);
}

void OrdenarColumna(ListaZT& lista, qint16 columna, QWidget& form, QWidget& picOrden) {
    if (lista.Cuenta() == 0) {
        return;
    }
    lista.Ordenado(false);
    if (columna == 0) {
        picOrden.hide();
        lista.setFocus(Qt::OtherFocusReason);
        MostrarSeleccionado(lista);
        return;
    }
    if (lista.isVisible()) {
        lista.setFocus(Qt::OtherFocusReason);
    }
    lista.ClaveOrden(columna);
    lista.Ordenado(true);
    picOrden.show();
    const QPoint origen = picOrden.parentWidget()->mapFromGlobal(lista.mapToGlobal(QPoint(0, 0)));
    picOrden.move(origen.x() + BordeDeCabecera(form, columna) - picOrden.width(), picOrden.y());
    MostrarSeleccionado(lista);
}

void SeleccionarPrimero(ListaZT& lista) {
    if (lista.Cuenta() > 0) {
        lista.Seleccionar(1);
        lista.AsegurarVisible(1);
    }
}

void SeleccionarUltimo(ListaZT& lista) {
    if (lista.Cuenta() > 0) {
        lista.Seleccionar(lista.Cuenta());
        MostrarSeleccionado(lista);
    }
}

void SeleccionarElemento(ListaZT& lista, qint16 elemento) {
    if (lista.Cuenta() > 0) {
        lista.Seleccionar(elemento);
        MostrarSeleccionado(lista);
    }
}

void SeleccionarTexto(QWidget& control) {
    if (auto* caja = qobject_cast<QLineEdit*>(&control)) {
        caja->selectAll();
    }
    if (control.objectName().startsWith(u"CNU"_s, Qt::CaseInsensitive)) {
        control.setProperty(kValorAnterior, control.property("text"));
    }
}
