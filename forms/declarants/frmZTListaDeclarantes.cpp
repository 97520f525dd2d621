#include "forms/declarants/frmZTListaDeclarantes.h"

#include <array>

#include "core/base/Formatos.h"
#include "core/base/Pantalla.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTListaDeclaraciones.h"
#include "core/records/cZTListaDeclarantes.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/runtime/Menus.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "forms/runtime/ParDeBotones.h"
#include "forms/widgets/Colocacion.h"
#include "ui_frmZTListaDeclarantes.h"

using namespace Qt::StringLiterals;

namespace {

/// Columns of the buffer, and sub-items of the list from the second on.
using Columna = cZTListaDeclarantes::Columna;

constexpr qint16 kPorNIF = 1;
constexpr qint16 kPorNombre = 2;

constexpr std::array kColumnas{ListaZT::Columna{Id::Numero}, ListaZT::Columna{Id::RazonSocial, 4500},
                               ListaZT::Columna{Id::Municipio, 2000}, ListaZT::Columna{Id::Provincia, 2000}};

bool ParaAbrir() { return oListaDeclarantes().Modo == cZTListaDeclarantes::kModoAbrir; }

/// The command that goes on with the selected declarant, in the two uses of the list.
ParDeBotones::Aspecto AspectoDeAceptar() {
    return ParaAbrir() ? ParDeBotones::Aspecto{Imagen16::Aceptar, Id::Aceptar}
                       : ParDeBotones::Aspecto{Imagen16::Borrar, Id::Borrar};
}

}  // namespace

frmZTListaDeclarantes::frmZTListaDeclarantes()
    : FormularioTrabajo(kNombre), m_ui(std::make_unique<Ui::frmZTListaDeclarantes>()) {
    m_ui->setupUi(this);
    PonerFlechaDeOrden(*m_ui->picOrden);
    m_aceptar = new ParDeBotones(*this, *m_ui->cmdAceptar, *m_ui->picAceptar, AspectoDeAceptar(),
                                 [this] { cmdAceptar_Click(); });
    m_cancelar = new ParDeBotones(*this, *m_ui->cmdCancelar, *m_ui->picCancelar,
                                  {Imagen16::Cerrar, Id::Salir}, [this] { cmdCancelar_Click(); });
    Conectar(*this, m_ui->lblCol1, &QAbstractButton::clicked, [this] { OrdenarPor(kPorNIF); });
    Conectar(*this, m_ui->lblCol2, &QAbstractButton::clicked, [this] { OrdenarPor(kPorNombre); });
    ConectarLista();
}

frmZTListaDeclarantes::~frmZTListaDeclarantes() = default;

void frmZTListaDeclarantes::ConectarLista() {
    Conectar(*this, m_ui->lsvDeclarantes, &ListaZT::Click,
             [this] { ConTrampa(u"lsvDeclarantes_Click", [this] { PresentaBotones(); }); });
    Conectar(*this, m_ui->lsvDeclarantes, &ListaZT::DblClick, [this] { cmdAceptar_Click(); });
    connect(m_ui->lsvDeclarantes, &ListaZT::KeyPress, this, [this](int& keyAscii) {
        ConTrampa(u"lsvDeclarantes_KeyPress", [&] { lsvDeclarantes_KeyPress(keyAscii); });
    });
    connect(m_ui->lsvDeclarantes, &ListaZT::KeyUp, this,
            [this](int tecla) { ConTrampa(u"lsvDeclarantes_KeyUp", [&] { lsvDeclarantes_KeyUp(tecla); }); });
}

void frmZTListaDeclarantes::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        setWindowTitle(Texto(ParaAbrir() ? Id::AbrirDeclarante : Id::BorrarDeclarante));
        m_ui->lblDeclarantes->setText(Texto(Id::Declarantes));
        m_ui->lblCabecera->setText(Texto(Id::AyudaParaOrdenar));
        m_ui->lblCol1->setText(Texto(Id::NIF));
        m_ui->lblCol2->setText(Texto(Id::Nombre));
        m_ui->lblCol3->setText(Texto(Id::Municipio));
        m_ui->lblCol4->setText(Texto(Id::Provincia));
        m_aceptar->Tomar(AspectoDeAceptar());
        m_aceptar->PonerTexto();
        m_cancelar->PonerTexto();
    });
}

void frmZTListaDeclarantes::Form_Load() {
    ConTrampa(u"Form_Load", [this] {
        InicializarDatos();
        AnadirCaptions();
        PresentaBotones();
        PosicionaFormulario(*this, 0, 0);
    });
}

void frmZTListaDeclarantes::Form_Activate() { Deshabilitar_menu(); }

void frmZTListaDeclarantes::Form_Unload() { Habilitar_menu(); }

void frmZTListaDeclarantes::InicializarDatos() {
    ConTrampa(u"InicializarDatos", [this] {
        InicializarLista();
        m_ui->picOrden->move(m_ui->lblCol1->width(), m_ui->picOrden->y());
        RellenarLista();
        SeleccionarPrimero(*m_ui->lsvDeclarantes);
    });
}

void frmZTListaDeclarantes::InicializarLista() {
    ConTrampa(u"InicializarLista", [this] {
        ListaZT& lista = *m_ui->lsvDeclarantes;
        lista.PonerColumnas(kColumnas);
        lista.setMinimumWidth(lista.TamanoDesplegada().width());
        m_ui->cabLista->Colocar(lista, {m_ui->lblCol1, m_ui->lblCol2, m_ui->lblCol3, m_ui->lblCol4},
                                m_ui->picOrden);
    });
}

void frmZTListaDeclarantes::RellenarLista() {
    ConTrampa(u"RellenarLista", [this] {
        ListaZT& lista = *m_ui->lsvDeclarantes;
        lista.Limpiar();
        const Tabla& declarantes = oListaDeclarantes().vBufferDeclarantes;
        if (declarantes.EsNula()) {
            return;
        }
        for (int fila = 1; fila <= declarantes.UltimaFila(); ++fila) {
            const auto texto = [&](Columna columna) { return declarantes(columna, fila).aTexto().trimmed(); };
            lista.Anadir(QString(), Formatear(declarantes(Columna::kCSDE, fila), u"0000"),
                         {texto(Columna::kNIF), texto(Columna::kNombre), texto(Columna::kMunici),
                          ObtenerNombreProvincia(declarantes(Columna::kProvin, fila).aEntero16()).trimmed()});
        }
        OrdenarPor(kPorNIF);
    });
}

void frmZTListaDeclarantes::OrdenarPor(qint16 columna) {
    OrdenarColumna(*m_ui->lsvDeclarantes, columna, *this, *m_ui->picOrden);
    SeleccionarPrimero(*m_ui->lsvDeclarantes);
}

void frmZTListaDeclarantes::PresentaBotones() {
    ConTrampa(u"PresentaBotones", [this] {
        m_aceptar->Tomar(AspectoDeAceptar());
        // The twin stays enabled with no one to choose: docs/reglas.md, gemelo-siempre-activo.
        m_aceptar->HabilitarBoton(m_ui->lsvDeclarantes->Cuenta() > 0);
    });
}

void frmZTListaDeclarantes::lsvDeclarantes_KeyPress(int& keyAscii) {
    ListaZT& lista = *m_ui->lsvDeclarantes;
    if (keyAscii == ListaZT::kEspacio) {
        lista.Marcar(lista.Seleccionado());
        PresentaBotones();
    }
    if (keyAscii == ListaZT::kIntro && lista.Marcado(lista.Seleccionado())) {
        keyAscii = 0;
        cmdAceptar_Click();
    }
}

void frmZTListaDeclarantes::lsvDeclarantes_KeyUp(int tecla) {
    if (tecla == Qt::Key_Left || tecla == Qt::Key_Up || tecla == Qt::Key_Right || tecla == Qt::Key_Down) {
        m_ui->lsvDeclarantes->Marcar(m_ui->lsvDeclarantes->Seleccionado());
        PresentaBotones();
    }
}

void frmZTListaDeclarantes::cmdAceptar_Click() {
    ConTrampa(u"cmdAceptar_Click", [this] {
        Pantalla().PonerPuntero(Puntero::Espera);
        oDeclarante().CSDE = m_ui->lsvDeclarantes->ClaveElegida();
        if (ParaAbrir()) {
            AbrirDeclarante();
        } else {
            BorrarDeclarante();
        }
        Pantalla().PonerPuntero(Puntero::Normal);
    });
}

void frmZTListaDeclarantes::AbrirDeclarante() {
    oDeclarante().Modo = cZTDeclarante::kModoExistente;
    oDeclarante().InicializaDatos();
    Formularios::Descargar(Nombre());
    oListaDeclaraciones().SelCSDC = 0;
    Formularios::Mostrar(Forma::ListaDeclaraciones);
    Pantalla().CederUnaVez();
}

void frmZTListaDeclarantes::BorrarDeclarante() {
    ListaZT& lista = *m_ui->lsvDeclarantes;
    const bool conDeclaraciones = oDeclarante().TieneDeclaraciones();
    const bool conEstablecimientos = oDeclarante().TieneEstablecimientos();
    if (conDeclaraciones || conEstablecimientos) {
        Mensaje(Texto(Id::DeclaranteConAsociados), windowTitle(), true);
        lista.setFocus();
        return;
    }
    const QString nif = lista.Subitem(lista.Seleccionado(), Columna::kNIF);
    if (Mensaje(Texto(Id::PreguntaBorrarDeclarante) + nif, windowTitle(), false) == kRespuestaAceptar) {
        oDeclarante().EliminarDeclarante();
        oListaDeclarantes().vBufferDeclarantes = oListaDeclarantes().ObtenerDeclarantes();
        lista.Ordenado(false);
        RellenarLista();
        PresentaBotones();
        if (lista.Cuenta() == 0) {
            m_ui->cmdCancelar->setFocus();
        }
    }
}

void frmZTListaDeclarantes::cmdCancelar_Click() {
    oDeclarante().Modo = cZTDeclarante::kModoNuevo;
    oDeclarante().InicializaDatos();
    Formularios::Descargar(Nombre());
}
