#include "forms/declarations/PanelNuevaDec.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>

#include "core/records/ListaDeTrimestres.h"
#include "core/records/cZTNuevaDec.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/runtime/CajasDeFormulario.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/runtime/SegundoClic.h"
#include "forms/widgets/BotonImagen.h"
#include "forms/widgets/CajaTexto.h"
#include "forms/widgets/Colocacion.h"
#include "forms/widgets/Imagenes.h"
#include "forms/widgets/ListaZT.h"

namespace {

enum ImagenNueva : std::size_t { kCancelar, kConfirmar };

/// Characters of the key of a quarter before its name.
constexpr int kAntesDelNombre = 2;

/// What the record fills.
class TrimestresEnLista : public ListaDeTrimestres {
  public:
    explicit TrimestresEnLista(ListaZT& lista) : m_lista(lista) {}

    void Limpiar() override { m_lista.Limpiar(); }
    void LimpiarColumnas() override { m_lista.LimpiarColumnas(); }
    [[nodiscard]] int Ancho() const override { return PixelesATwips(m_lista.width(), m_lista); }
    void AnadirColumna(const QString& texto, int ancho) override {
        m_lista.AnadirColumna(texto, texto, ancho);
    }
    void PermitirReordenarColumnas() override { m_lista.header()->setSectionsMovable(true); }
    void Anadir(const QString& clave, const QString& texto) override { m_lista.Anadir(clave, texto); }

  private:
    ListaZT& m_lista;
};

/// Item of the quarter of that name; 0 when there is none.
int BuscarPeriodo(const ListaZT& lista, const QString& periodo) {
    for (int i = 1; i <= lista.Cuenta(); ++i) {
        if (lista.Clave(i).mid(kAntesDelNombre) == periodo) {
            return i;
        }
    }
    return 0;
}

bool SueltaUnaTecla(const QEvent& evento) {
    return evento.type() == QEvent::KeyRelease && !static_cast<const QKeyEvent&>(evento).isAutoRepeat();
}

bool SueltaElBoton(const QEvent& evento) {
    return evento.type() == QEvent::MouseButtonRelease &&
           static_cast<const QMouseEvent&>(evento).button() == Qt::LeftButton;
}

void Nombrar(BotonImagen& imagen, const QString& nombre) {
    imagen.setAccessibleName(nombre);
    imagen.setToolTip(nombre);
}

}  // namespace

PanelNuevaDec::PanelNuevaDec(Formulario& formulario, const Controles& controles, Reglas reglas)
    : QObject(&formulario.Ventana()), m_formulario(formulario), m_c(controles), m_reglas(std::move(reglas)) {
    // The panel comes and goes without moving what stands around it.
    QSizePolicy hueco = m_c.marco.sizePolicy();
    hueco.setRetainSizeWhenHidden(true);
    m_c.marco.setSizePolicy(hueco);

    // The year is checked by the keys of its own box; those of the rest of the form change nothing.
    PrepararCajas(formulario, [] {});
    m_c.txtEjercicio.installEventFilter(this);
    Conectar(formulario, &m_c.txtEjercicio, &CajaTexto::Cambiado, [this] { ComprobarEjercicio(); });
    m_c.txtPeriodo.installEventFilter(this);
    Conectar(formulario, &m_c.picPeriodo, &BotonImagen::clicked, [this] { AbrirPeriodos(); });
    AlRecibirFoco(formulario, &m_c.picPeriodo,
                  [this] { m_c.picPeriodo.setIcon(ilsMDI32(Imagen32::FlechaConFoco)); });
    AlPerderFoco(formulario, &m_c.picPeriodo, [this] { PonerFlecha(); });
    Conectar(formulario, &m_c.lsvPeriodos, &ListaZT::Click, [this] {
        SegundoClic::Tragar();
        ElegirPeriodo();
    });
    connect(&m_c.lsvPeriodos, &ListaZT::KeyPress, this, [this](int& keyAscii) {
        if (!m_formulario.Descargado()) {
            Evento([&] { TeclaEnPeriodos(keyAscii); });
        }
    });
    AlPerderFoco(formulario, &m_c.lsvPeriodos, [this] { m_c.lsvPeriodos.hide(); });
    Conectar(formulario, m_c.ImgNueva[kCancelar], &BotonImagen::clicked, [this] { m_reglas.cancelar(); });
    Conectar(formulario, m_c.ImgNueva[kConfirmar], &BotonImagen::clicked, [this] { m_reglas.confirmar(); });
}

void PanelNuevaDec::AnadirCaptions() {
    m_c.lblNuevaDec.setText(Texto(Id::NuevaDeclaracion));
    m_c.lblEjer.setText(Texto(Id::Ejercicio));
    const QString periodo = Texto(Id::Periodo);
    m_c.lblPer.setText(periodo);
    m_c.txtPeriodo.setAccessibleName(periodo);
    m_c.lsvPeriodos.setAccessibleName(periodo);
    Nombrar(m_c.picPeriodo, periodo);
    Nombrar(*m_c.ImgNueva[kCancelar], Texto(Id::Cancelar).remove(u'&'));
    Nombrar(*m_c.ImgNueva[kConfirmar], Texto(Id::Aceptar).remove(u'&'));
}

void PanelNuevaDec::CargarImagenes() {
    m_c.ImgNueva[kCancelar]->setIcon(ilsMDI16(Imagen16::Aceptar));
    m_c.ImgNueva[kConfirmar]->setIcon(ilsMDI16(Imagen16::CancelarGris));
    PonerFlecha();
}

void PanelNuevaDec::PonerFlecha() { m_c.picPeriodo.setIcon(ilsMDI32(Imagen32::Flecha)); }

void PanelNuevaDec::Mostrar() {
    m_c.ImgNueva[kCancelar]->setIcon(ilsMDI16(Imagen16::Cancelar));
    m_c.ImgNueva[kConfirmar]->setIcon(ilsMDI16(Imagen16::Aceptar));
    for (BotonImagen* imagen : m_c.ImgNueva) {
        imagen->setCursor(Qt::PointingHandCursor);
    }
    m_c.marco.show();
}

void PanelNuevaDec::Ocultar() {
    m_c.lsvPeriodos.hide();
    m_c.marco.hide();
}

void PanelNuevaDec::Pintar() {
    const cZTNuevaDec& nueva = oNuevaDec();
    m_c.txtPeriodo.setText(DameStringPeriodo(nueva.Periodo));
    const QString ejercicio = nueva.Ejercicio == 0 ? QString() : QString::number(nueva.Ejercicio);
    // The caret of the one who is typing stays where it is.
    if (m_c.txtEjercicio.text() != ejercicio) {
        m_c.txtEjercicio.setText(ejercicio);
    }
}

void PanelNuevaDec::Entrar() { m_c.txtEjercicio.setFocus(Qt::OtherFocusReason); }

bool PanelNuevaDec::eventFilter(QObject* objeto, QEvent* evento) {
    // The boxes have events to the last of the form, when there is no asking it any more.
    const bool tecla = objeto == &m_c.txtEjercicio && SueltaUnaTecla(*evento);
    const bool clic = objeto == &m_c.txtPeriodo && SueltaElBoton(*evento);
    if ((tecla || clic) && !m_formulario.Descargado()) {
        Evento([this, tecla] {
            if (tecla) {
                ComprobarEjercicio();
            } else {
                AbrirPeriodos();
            }
        });
    }
    return QObject::eventFilter(objeto, evento);
}

void PanelNuevaDec::ComprobarEjercicio() {
    switch (oNuevaDec().ComprobarEjercicio(m_c.txtEjercicio.text())) {
        case CambioDeEjercicio::Tomado:
            m_reglas.refrescar();
            break;
        case CambioDeEjercicio::Rechazado:
            LimpiarEjercicio();
            break;
        case CambioDeEjercicio::Ninguno:
            break;
    }
}

void PanelNuevaDec::LimpiarEjercicio() {
    Entrar();
    m_c.txtEjercicio.clear();
    oNuevaDec().Ejercicio = 0;
}

void PanelNuevaDec::AbrirPeriodos() {
    // As wide as box and arrow: a list that has been open before starts from there again.
    const int ancho = m_c.picPeriodo.geometry().right() + 1 - m_c.txtPeriodo.x();
    m_c.lsvPeriodos.resize(ancho, m_c.lsvPeriodos.height());
    TrimestresEnLista trimestres(m_c.lsvPeriodos);
    oNuevaDec().CargaPeriodos(trimestres);
    DesplegarLista(m_c.lsvPeriodos, m_c.txtPeriodo, BuscarPeriodo(m_c.lsvPeriodos, m_c.txtPeriodo.text()));
}

void PanelNuevaDec::ElegirPeriodo() {
    const QString elegido = m_c.lsvPeriodos.Texto(m_c.lsvPeriodos.Seleccionado());
    if (elegido != m_c.txtPeriodo.text() && oNuevaDec().ValidarPeriodo(elegido)) {
        m_c.txtPeriodo.setText(elegido);
        oNuevaDec().ObtPeriodo(elegido);
    }
    // Before the focus goes to the arrow, which shows that it has it.
    m_reglas.refrescar();
    m_c.picPeriodo.setFocus(Qt::OtherFocusReason);
    m_c.lsvPeriodos.hide();
}

void PanelNuevaDec::TeclaEnPeriodos(int& keyAscii) {
    if (keyAscii == ListaZT::kIntro) {
        keyAscii = 0;
        ElegirPeriodo();
    } else if (keyAscii == ListaZT::kEscape) {
        keyAscii = 0;
        m_c.picPeriodo.setFocus(Qt::OtherFocusReason);
        m_c.lsvPeriodos.hide();
    } else {
        keyAscii = CaracterAceptable(keyAscii);
    }
}
