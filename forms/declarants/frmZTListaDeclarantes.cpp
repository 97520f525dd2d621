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
#include "forms/runtime/Gemelos.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/runtime/Menus.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "forms/widgets/Colocacion.h"
#include "forms/widgets/Imagenes.h"
#include "ui_frmZTListaDeclarantes.h"

using namespace Qt::StringLiterals;

namespace {

/// Columns of the buffer, and sub-items of the list from the second on.
using Columna = cZTListaDeclarantes::Columna;

constexpr qint16 kPorNIF = 1;
constexpr qint16 kPorNombre = 2;

constexpr int kIntro = 13;
constexpr int kEspacio = 32;

/// Small images: the arrow of the order, close, and the pictures of the two uses with their grey twins.
constexpr int kImagenOrden = 3;
constexpr int kImagenAceptar = 6;
constexpr int kImagenBorrar = 9;
constexpr int kImagenCerrar = 12;
constexpr int kImagenAceptarGris = 14;
constexpr int kImagenBorrarGris = 15;
constexpr int kLadoDeOrden = 12;

/// Text ids of the columns of the list, each both its key and its text, and their widths in twips.
struct ColumnaDeLista {
    Id texto;
    int ancho;
};
constexpr std::array kColumnas{ColumnaDeLista{Id::Numero, ListaZT::kAnchoDeColumna},
                               ColumnaDeLista{Id::RazonSocial, 4500}, ColumnaDeLista{Id::Municipio, 2000},
                               ColumnaDeLista{Id::Provincia, 2000}};

bool ParaAbrir() { return oListaDeclarantes().Modo == cZTListaDeclarantes::kModoAbrir; }

}  // namespace

frmZTListaDeclarantes::frmZTListaDeclarantes()
    : FormularioTrabajo(kNombre), m_ui(std::make_unique<Ui::frmZTListaDeclarantes>()) {
    m_ui->setupUi(this);
    m_ui->picCancelar->setIcon(ilsMDI16(kImagenCerrar));
    const QSize lado(kLadoDeOrden, kLadoDeOrden);
    m_ui->picOrden->setPixmap(ilsMDI16(kImagenOrden).pixmap(lado, devicePixelRatioF()));
    m_ui->picOrden->resize(lado);

    Conectar(*this, m_ui->cmdAceptar, &QAbstractButton::clicked, [this] { cmdAceptar_Click(); });
    Conectar(*this, m_ui->picAceptar, &QAbstractButton::clicked, [this] { cmdAceptar_Click(); });
    Conectar(*this, m_ui->cmdCancelar, &QAbstractButton::clicked, [this] { cmdCancelar_Click(); });
    Conectar(*this, m_ui->picCancelar, &QAbstractButton::clicked, [this] { cmdCancelar_Click(); });
    Conectar(*this, m_ui->lblCol1, &QAbstractButton::clicked, [this] { OrdenarPor(kPorNIF); });
    Conectar(*this, m_ui->lblCol2, &QAbstractButton::clicked, [this] { OrdenarPor(kPorNombre); });
    ConectarLista();
}

frmZTListaDeclarantes::~frmZTListaDeclarantes() = default;

template <class F>
void frmZTListaDeclarantes::ConTrampa(QStringView evento, F&& cuerpo) {
    EventoConTrampa(Nombre(), u"%1.%2"_s.arg(Nombre(), evento), std::forward<F>(cuerpo));
}

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
        m_ui->cmdAceptar->setText(Texto(ParaAbrir() ? Id::Aceptar : Id::Borrar));
        m_ui->cmdCancelar->setText(Texto(Id::Salir));
        NombrarGemelo(*m_ui->picAceptar, *m_ui->cmdAceptar);
        NombrarGemelo(*m_ui->picCancelar, *m_ui->cmdCancelar);
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
        lista.AnadirColumna(u"Clave"_s, QString(), ListaZT::kAnchoDeColumna, true);
        for (const ColumnaDeLista& columna : kColumnas) {
            const QString texto = Texto(columna.texto);
            lista.AnadirColumna(texto, texto, columna.ancho);
        }
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
        const bool hay = m_ui->lsvDeclarantes->Cuenta() > 0;
        m_ui->cmdAceptar->setEnabled(hay);
        // The twin stays enabled with no one to choose: docs/reglas.md, gemelo-siempre-activo.
        m_ui->picAceptar->setEnabled(true);
        const int imagen = ParaAbrir() ? (hay ? kImagenAceptar : kImagenAceptarGris)
                                       : (hay ? kImagenBorrar : kImagenBorrarGris);
        m_ui->picAceptar->setIcon(ilsMDI16(imagen));
    });
}

void frmZTListaDeclarantes::lsvDeclarantes_KeyPress(int& keyAscii) {
    ListaZT& lista = *m_ui->lsvDeclarantes;
    if (keyAscii == kEspacio) {
        lista.Marcar(lista.Seleccionado());
        PresentaBotones();
    }
    if (keyAscii == kIntro && lista.Marcado(lista.Seleccionado())) {
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
        const ListaZT& lista = *m_ui->lsvDeclarantes;
        oDeclarante().CSDE = Valor(lista.Texto(lista.Seleccionado())).aEntero32();
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
