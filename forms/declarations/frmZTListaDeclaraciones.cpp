#include "forms/declarations/frmZTListaDeclaraciones.h"

#include "core/base/Formatos.h"
#include "core/base/Pantalla.h"
#include "core/printing/cZTImprimir.h"
#include "core/records/CambioDeOtro.h"
#include "core/records/Productos.h"
#include "core/records/cZTDeclaraciones.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTListaDeclaraciones.h"
#include "core/records/cZTNuevaDec.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/declarations/PanelNuevaDec.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/runtime/Menus.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "forms/widgets/Colocacion.h"
#include "ui_frmZTListaDeclaraciones.h"

using namespace Qt::StringLiterals;

namespace {

/// Columns of the buffer, and sub-items of the list from the second on.
using Columna = cZTListaDeclaraciones::Columna;

constexpr std::array kColumnas{ListaZT::Columna{Id::Ejercicio, 2000}, ListaZT::Columna{Id::Periodo, 2240},
                               ListaZT::Columna{Id::CuotaTotal, 2345, Qt::AlignTrailing}};

}  // namespace

frmZTListaDeclaraciones::frmZTListaDeclaraciones()
    : FormularioTrabajo(kNombre), m_ui(std::make_unique<Ui::frmZTListaDeclaraciones>()) {
    m_ui->setupUi(this);
    m_ui->shpNueva2->setBackgroundRole(QPalette::Midlight);
    ConectarBotones();
    ConectarLista();
    PrepararPanel();
}

frmZTListaDeclaraciones::~frmZTListaDeclaraciones() = default;

/// The commands of the form: their buttons, texts and procedures.
auto frmZTListaDeclaraciones::Ordenes() const -> std::array<Orden, 7> {
    using Este = frmZTListaDeclaraciones;
    return {{{m_ui->cmdnuedecla, Id::Nueva, &Este::cmdnuedecla_Click},
             {m_ui->cmddatdecla, Id::Datos, &Este::cmddatdecla_Click},
             {m_ui->cmdeli, Id::Borrar, &Este::cmdeli_Click},
             {m_ui->cmdImpOfi, Id::Imprimir, &Este::cmdImpOfi_Click},
             {m_ui->cmdDte, Id::MenuDeclarante, &Este::cmdDte_Click},
             {m_ui->cmdEstablecimientos, Id::Establecimientos, &Este::cmdEstablecimientos_Click},
             {m_ui->cmdCerrarDec, Id::Salir, &Este::cmdCerrarDec_Click}}};
}

void frmZTListaDeclaraciones::ConectarBotones() {
    for (const Orden& orden : Ordenes()) {
        Conectar(*this, orden.boton, &QAbstractButton::clicked,
                 [this, procedimiento = orden.procedimiento] { (this->*procedimiento)(); });
    }
}

void frmZTListaDeclaraciones::ConectarLista() {
    Conectar(*this, m_ui->lsvDeclaraciones, &ListaZT::Click, [this] { PresentaPanelNueva(); });
    Conectar(*this, m_ui->lsvDeclaraciones, &ListaZT::DblClick, [this] { AbrirDeclaracion(); });
    connect(m_ui->lsvDeclaraciones, &ListaZT::KeyPress, this, [this](int& keyAscii) {
        if (!Descargado()) {
            Evento([&] { lsvDeclaraciones_KeyPress(keyAscii); });
        }
    });
}

void frmZTListaDeclaraciones::PrepararPanel() {
    m_panel = new PanelNuevaDec(*this,
                                {*m_ui->shpNueva1,
                                 *m_ui->lblNuevaDec,
                                 *m_ui->lblEjer,
                                 *m_ui->txtEjercicio,
                                 *m_ui->lblPer,
                                 *m_ui->txtPeriodo,
                                 *m_ui->picPeriodo,
                                 *m_ui->lsvPeriodos,
                                 {m_ui->ImgNueva0, m_ui->ImgNueva1}},
                                {.refrescar = [this] { RefrescarNueva(); },
                                 .cancelar = [this] { CancelarNueva(); },
                                 .confirmar = [this] { CrearDeclaracion(); }});
}

void frmZTListaDeclaraciones::AnadirCaptions() {
    setWindowTitle(Texto(Id::ListaDeDeclaraciones));
    m_ui->lblDatosDte->setText(Texto(Id::DatosDelDeclarante));
    m_ui->lblDeclarante->setText(Texto(Id::Nombre) + u':');
    m_ui->lblDec->setText(oDeclarante().Nombre);
    m_ui->lblNIF->setText(Texto(Id::NIF) + u':');
    m_ui->lblDNI->setText(oDeclarante().NIF);
    m_ui->lblEjercicio->setText(Texto(Id::Ejercicio));
    m_ui->lblPeriodo->setText(Texto(Id::Periodo));
    m_ui->lblCuota->setText(Texto(Id::ImporteAIngresar));
    for (const Orden& orden : Ordenes()) {
        orden.boton->setText(Texto(orden.texto));
    }
    m_ui->lsvDeclaraciones->setAccessibleName(windowTitle());
    m_panel->AnadirCaptions();
}

void frmZTListaDeclaraciones::Form_Load() {
    OcultarPanelNueva();
    InicializarLista();
    Deshabilitar_menu();
    oListaDeclaraciones().RellenarDeclaraciones();
    RellenarListaDeclaraciones();
    AnadirCaptions();
    PosicionaFormulario(*this, 0, 0);
}

void frmZTListaDeclaraciones::Form_Activate() {
    ConTrampa(u"Form_Activate", [this] {
        Pantalla().CederUnaVez();
        PresentaPanelNueva();
    });
}

void frmZTListaDeclaraciones::Form_Unload() {
    if (m_ui->lsvDeclaraciones->Cuenta() > 0) {
        oListaDeclaraciones().SelCSDC = m_ui->lsvDeclaraciones->ClaveElegida();
    }
    Pantalla().PonerPuntero(Puntero::Normal);
}

void frmZTListaDeclaraciones::InicializarLista() {
    // The name of the other list form: docs/reglas.md, traza-de-otro-formulario.
    EventoConTrampa(Nombre(), u"frmZTListaDeclarantes.InicializarLista"_s, [this] {
        ListaZT& lista = *m_ui->lsvDeclaraciones;
        lista.PonerColumnas(kColumnas);
        const int ancho = lista.TamanoDesplegada().width();
        lista.setFixedWidth(ancho);
        m_ui->shpColumn->setFixedWidth(ancho);
        m_ui->shpColumn->Colocar(lista, {m_ui->lblEjercicio, m_ui->lblPeriodo, m_ui->lblCuota});
    });
}

void frmZTListaDeclaraciones::RellenarListaDeclaraciones() {
    ConTrampa(u"RellenarListaDeclaraciones", [this] {
        ListaZT& lista = *m_ui->lsvDeclaraciones;
        lista.Limpiar();
        const Tabla& declaraciones = oListaDeclaraciones().BufferDeclaraciones;
        if (declaraciones.EsNula()) {
            return;
        }
        for (int fila = 1; fila <= declaraciones.UltimaFila(); ++fila) {
            lista.Anadir(QString(), declaraciones(Columna::kCSDC, fila).aTexto(),
                         {declaraciones(Columna::kEjercicio, fila).aTexto(),
                          DameStringPeriodo(declaraciones(Columna::kPeriodo, fila).aEntero16()),
                          Formatear(BC(declaraciones(Columna::kImporte, fila)), kMascaraImporte)});
        }
        SeleccionarFila();
    });
}

/// Shows what the store now has.
void frmZTListaDeclaraciones::RefrescarLista() {
    oListaDeclaraciones().RellenarDeclaraciones();
    RellenarListaDeclaraciones();
    Pantalla().CederUnaVez();
    PresentaPanelNueva();
}

void frmZTListaDeclaraciones::SeleccionarFila() {
    ListaZT& lista = *m_ui->lsvDeclaraciones;
    qint32& pedida = oListaDeclaraciones().SelCSDC;
    if (pedida == 0) {
        SeleccionarUltimo(lista);
        return;
    }
    const int elegida = lista.BuscarTexto(QString::number(pedida));
    if (elegida > 0) {
        SeleccionarElemento(lista, static_cast<qint16>(elegida));
        pedida = 0;
    }
}

void frmZTListaDeclaraciones::HabilitarBotones(bool habilitados) {
    for (QAbstractButton* boton : findChildren<QAbstractButton*>()) {
        if (boton->objectName().startsWith(u"cmd")) {
            boton->setEnabled(habilitados);
        }
    }
}

void frmZTListaDeclaraciones::PresentaPanelNueva() {
    if (m_nuevaActiva) {
        PresentaPanel();
    } else {
        PresentaLista();
    }
    m_panel->PonerFlecha();
}

void frmZTListaDeclaraciones::PresentaPanel() {
    // Shown first: the focus of a control that is disabled goes on to one that takes it.
    m_panel->Mostrar();
    HabilitarBotones(false);
    m_ui->lsvDeclaraciones->setEnabled(false);
}

void frmZTListaDeclaraciones::PresentaLista() {
    ListaZT& lista = *m_ui->lsvDeclaraciones;
    lista.setEnabled(true);
    if (oListaDeclaraciones().NumDecla > 0) {
        HabilitarBotones(true);
        lista.AsegurarVisible(lista.Seleccionado());
        lista.setFocus(Qt::OtherFocusReason);
        lista.Marcar(lista.Seleccionado());
    } else {
        for (QAbstractButton* boton : {m_ui->cmdnuedecla, m_ui->cmdCerrarDec, m_ui->cmdDte}) {
            boton->setEnabled(true);
        }
        for (QAbstractButton* boton : {m_ui->cmddatdecla, m_ui->cmdeli, m_ui->cmdImpOfi}) {
            boton->setEnabled(false);
        }
    }
    m_panel->Ocultar();
}

void frmZTListaDeclaraciones::OcultarPanelNueva() {
    m_panel->Ocultar();
    m_panel->CargarImagenes();
}

void frmZTListaDeclaraciones::RefrescarNueva() {
    m_panel->Pintar();
    PresentaPanelNueva();
}

void frmZTListaDeclaraciones::CancelarNueva() {
    m_nuevaActiva = false;
    oNuevaDec().InicializaDatos();
    PresentaPanelNueva();
}

void frmZTListaDeclaraciones::CrearDeclaracion() {
    m_nuevaActiva = false;
    Pantalla().PonerPuntero(Puntero::Espera);
    Pantalla().CederUnaVez();
    if (!oNuevaDec().ValidarDatos()) {
        // The panel closes when the form is activated next.
        Pantalla().PonerPuntero(Puntero::Normal);
        return;
    }
    cZTDeclaraciones& declaracion = oDeclaraciones();
    declaracion.Modo = cZTDeclaraciones::kModoNuevo;
    declaracion.InicializarDatos();
    declaracion.Periodo = oNuevaDec().Periodo;
    declaracion.Ejercicio = oNuevaDec().Ejercicio;
    const qint32 nueva = oNuevaDec().GuardarDeclaracion();
    oListaDeclaraciones().RellenarDeclaraciones();
    Formularios::Descargar(Nombre());
    oListaDeclaraciones().SelCSDC = nueva;
    declaracion.CSDC = nueva;
    oNuevaDec().InicializaDatos();
    Formularios::Mostrar(Forma::Declaracion);
    Pantalla().PonerPuntero(Puntero::Normal);
}

qint16 frmZTListaDeclaraciones::EjercicioElegido() const {
    const ListaZT& lista = *m_ui->lsvDeclaraciones;
    return Valor(lista.Subitem(lista.Seleccionado(), Columna::kEjercicio)).aEntero16();
}

qint16 frmZTListaDeclaraciones::PeriodoElegido() const {
    const ListaZT& lista = *m_ui->lsvDeclaraciones;
    return ObtenerPeriodo(lista.Subitem(lista.Seleccionado(), Columna::kPeriodo)).aEntero16();
}

void frmZTListaDeclaraciones::AbrirDeclaracion() {
    Pantalla().PonerPuntero(Puntero::Espera);
    cZTDeclaraciones& declaracion = oDeclaraciones();
    declaracion.Modo = cZTDeclaraciones::kModoExistente;
    declaracion.Periodo = PeriodoElegido();
    declaracion.Ejercicio = EjercicioElegido();
    declaracion.CSDC = m_ui->lsvDeclaraciones->ClaveElegida();
    declaracion.InicializarDatos();
    if (!declaracion.EsLaDe(oDeclarante().CSDE, declaracion.Ejercicio, declaracion.Periodo)) {
        AvisarDeCambioDeOtro(u"cambio_sin_declaracion", u"cambio_titulo");
        RefrescarLista();
        Pantalla().PonerPuntero(Puntero::Normal);
        return;
    }
    Formularios::Descargar(Nombre());
    Pantalla().CederUnaVez();
    Pantalla().PonerPuntero(Puntero::Espera);
    Formularios::Mostrar(Forma::Declaracion);
    Pantalla().PonerPuntero(Puntero::Normal);
}

void frmZTListaDeclaraciones::cmdnuedecla_Click() {
    Pantalla().PonerPuntero(Puntero::Espera);
    m_nuevaActiva = true;
    oNuevaDec().Sugerencia();
    RefrescarNueva();
    m_panel->Entrar();
    Pantalla().PonerPuntero(Puntero::Normal);
}

void frmZTListaDeclaraciones::cmddatdecla_Click() {
    Pantalla().PonerPuntero(Puntero::Espera);
    AbrirDeclaracion();
    Pantalla().PonerPuntero(Puntero::Normal);
}

void frmZTListaDeclaraciones::cmdeli_Click() {
    Pantalla().PonerPuntero(Puntero::Espera);
    if (Mensaje(Texto(Id::PreguntaEliminarDeclaracion), windowTitle(), false) != kRespuestaAceptar) {
        m_ui->lsvDeclaraciones->setFocus(Qt::OtherFocusReason);
        return;
    }
    if (!oListaDeclaraciones().EliminarDeclaracion(m_ui->lsvDeclaraciones->ClaveElegida())) {
        Mensaje(Texto(Id::DeclaracionNoEliminada), Texto(Id::EliminarDeclaracion), true);
    }
    RefrescarLista();
    Pantalla().PonerPuntero(Puntero::Normal);
}

void frmZTListaDeclaraciones::cmdImpOfi_Click() {
    oImprimir().Ejercicio = EjercicioElegido();
    oImprimir().Periodo = PeriodoElegido();
    oDeclaraciones().CSDC = m_ui->lsvDeclaraciones->ClaveElegida();
    Formularios::MostrarModal(Forma::Imp);
    m_ui->lsvDeclaraciones->setFocus(Qt::OtherFocusReason);
}

void frmZTListaDeclaraciones::cmdDte_Click() {
    Pantalla().PonerPuntero(Puntero::Espera);
    oDeclarante().Procedencia = cZTDeclarante::kDesdeListaDeclaraciones;
    oDeclarante().Modo = cZTDeclarante::kModoExistente;
    oDeclarante().InicializaDatos();
    Formularios::Mostrar(Forma::Declarante);
    Pantalla().CederUnaVez();
    Formularios::Descargar(Nombre());
    Pantalla().PonerPuntero(Puntero::Normal);
}

void frmZTListaDeclaraciones::cmdEstablecimientos_Click() {
    Formularios::Mostrar(Forma::ListaEstablecimientos);
    Formularios::Descargar(Nombre());
}

void frmZTListaDeclaraciones::cmdCerrarDec_Click() {
    Pantalla().PonerPuntero(Puntero::Espera);
    oDeclarante().Modo = cZTDeclarante::kModoNuevo;
    oDeclarante().InicializaDatos();
    Habilitar_menu();
    Formularios::Descargar(Nombre());
    Pantalla().PonerPuntero(Puntero::Normal);
}

void frmZTListaDeclaraciones::lsvDeclaraciones_KeyPress(int& keyAscii) {
    const ListaZT& lista = *m_ui->lsvDeclaraciones;
    if (keyAscii == ListaZT::kIntro && lista.Cuenta() > 0 && lista.Marcado(lista.Seleccionado())) {
        keyAscii = 0;
        AbrirDeclaracion();
    }
}
