#include "forms/establishments/frmZTListaEstablecimientos.h"

#include <array>

#include "core/base/Pantalla.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTEstablecimientos.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/Gemelos.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "forms/widgets/Colocacion.h"
#include "forms/widgets/Imagenes.h"
#include "ui_frmZTListaEstablecimientos.h"

using namespace Qt::StringLiterals;

namespace {

/// Columns of the buffer.
using Columna = cZTEstablecimientos::Columna;

constexpr int kIntro = 13;

constexpr int kImagenBorrar = 9;
constexpr int kImagenDatos = 10;
constexpr int kImagenNuevo = 11;
constexpr int kImagenCerrar = 12;
constexpr int kImagenBorrarGris = 15;
constexpr int kImagenDatosGris = 17;

/// Text ids of the columns of the list, each both its key and its text, and their widths in twips.
struct ColumnaDeLista {
    Id texto;
    int ancho;
};
constexpr std::array kColumnas{ColumnaDeLista{Id::CIM, 1170}, ColumnaDeLista{Id::Domicilio, 2980},
                               ColumnaDeLista{Id::NombreDeLaProvincia, 1275},
                               ColumnaDeLista{Id::NombreDelMunicipio, 2340}};

}  // namespace

frmZTListaEstablecimientos::frmZTListaEstablecimientos()
    : FormularioTrabajo(kNombre), m_ui(std::make_unique<Ui::frmZTListaEstablecimientos>()) {
    m_ui->setupUi(this);
    m_ui->picNuevo->setIcon(ilsMDI16(kImagenNuevo));
    m_ui->picCerrar->setIcon(ilsMDI16(kImagenCerrar));

    const auto conectar = [this](QAbstractButton* boton, QStringView evento, auto procedimiento) {
        Conectar(*this, boton, &QAbstractButton::clicked,
                 [this, evento, procedimiento] { ConTrampa(evento, [&] { (this->*procedimiento)(); }); });
    };
    conectar(m_ui->cmdNuevo, u"cmdNuevo_Click", &frmZTListaEstablecimientos::cmdNuevo_Click);
    conectar(m_ui->picNuevo, u"cmdNuevo_Click", &frmZTListaEstablecimientos::cmdNuevo_Click);
    conectar(m_ui->cmdDatos, u"cmdDatos_Click", &frmZTListaEstablecimientos::cmdDatos_Click);
    conectar(m_ui->picDatos, u"cmdDatos_Click", &frmZTListaEstablecimientos::cmdDatos_Click);
    conectar(m_ui->cmdEliminar, u"cmdEliminar_Click", &frmZTListaEstablecimientos::cmdEliminar_Click);
    conectar(m_ui->picEliminar, u"cmdEliminar_Click", &frmZTListaEstablecimientos::cmdEliminar_Click);
    conectar(m_ui->cmdCerrarLista, u"cmdCerrarLista_Click",
             &frmZTListaEstablecimientos::cmdCerrarLista_Click);
    conectar(m_ui->picCerrar, u"cmdCerrarLista_Click", &frmZTListaEstablecimientos::cmdCerrarLista_Click);

    Conectar(*this, m_ui->lsvEstablecimientos, &ListaZT::DblClick, [this] {
        ConTrampa(u"lsvEstablecimientos_DblClick", [this] { lsvEstablecimientos_DblClick(); });
    });
    connect(m_ui->lsvEstablecimientos, &ListaZT::KeyPress, this, [this](int& keyAscii) {
        ConTrampa(u"lsvEstablecimientos_KeyPress", [&] { lsvEstablecimientos_KeyPress(keyAscii); });
    });
}

frmZTListaEstablecimientos::~frmZTListaEstablecimientos() = default;

template <class F>
void frmZTListaEstablecimientos::ConTrampa(QStringView evento, F&& cuerpo) {
    EventoConTrampa(Nombre(), u"%1.%2"_s.arg(Nombre(), evento), std::forward<F>(cuerpo));
}

void frmZTListaEstablecimientos::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        setWindowTitle(Texto(Id::MantenimientoDeEstablecimientos));
        m_ui->lblDatosDte->setText(Texto(Id::DatosDelDeclarante));
        m_ui->lblDeclarante->setText(Texto(Id::Nombre));
        m_ui->lblDec->setText(oDeclarante().Nombre);
        m_ui->lblNIF->setText(Texto(Id::NIF));
        m_ui->lblDNI->setText(oDeclarante().NIF);
        m_ui->lblCIM->setText(Texto(Id::CIM));
        m_ui->lblDomicilio->setText(Texto(Id::Domicilio));
        m_ui->lblProvincia->setText(Texto(Id::Provincia));
        m_ui->lblMunicipio->setText(Texto(Id::Municipio));
        m_ui->cmdNuevo->setText(Texto(Id::NuevoEstablecimiento));
        m_ui->cmdDatos->setText(Texto(Id::DatosDeEstablecimiento));
        m_ui->cmdEliminar->setText(Texto(Id::EliminarEstablecimiento));
        m_ui->cmdCerrarLista->setText(Texto(Id::Salir));
        NombrarGemelo(*m_ui->picNuevo, *m_ui->cmdNuevo);
        NombrarGemelo(*m_ui->picDatos, *m_ui->cmdDatos);
        NombrarGemelo(*m_ui->picEliminar, *m_ui->cmdEliminar);
        NombrarGemelo(*m_ui->picCerrar, *m_ui->cmdCerrarLista);
        m_ui->lsvEstablecimientos->setAccessibleName(windowTitle());
    });
}

void frmZTListaEstablecimientos::Form_Load() {
    ConTrampa(u"Form_Load", [this] {
        AnadirCaptions();
        InicializarLista();
        RellenarEstablecimientos();
        PosicionaFormulario(*this, 0, 0);
    });
}

void frmZTListaEstablecimientos::Form_Activate() {
    // Here and below: docs/reglas.md, traza-de-otro-formulario.
    EventoConTrampa(Nombre(), u"frmNotListaCenso.Form_Activate"_s, [this] { PresentaBotones(); });
}

void frmZTListaEstablecimientos::InicializarLista() {
    ConTrampa(u"InicializarLista", [this] {
        ListaZT& lista = *m_ui->lsvEstablecimientos;
        lista.AnadirColumna(u"Clave"_s, QString(), ListaZT::kAnchoDeColumna, true);
        for (const ColumnaDeLista& columna : kColumnas) {
            const QString texto = Texto(columna.texto);
            lista.AnadirColumna(texto, texto, columna.ancho);
        }
        lista.setMinimumWidth(lista.TamanoDesplegada().width());
        m_ui->cabLista->Colocar(lista,
                                {m_ui->lblCIM, m_ui->lblDomicilio, m_ui->lblProvincia, m_ui->lblMunicipio});
    });
}

void frmZTListaEstablecimientos::RellenarEstablecimientos() {
    EventoConTrampa(Nombre(), u"frmNotListaCenso.RellenarEstablecimientos"_s, [this] {
        ListaZT& lista = *m_ui->lsvEstablecimientos;
        lista.Limpiar();
        oEstablecimientos().RellenarEstablecimientos();
        const Tabla& establecimientos = oEstablecimientos().BufferEstablecimientos;
        if (establecimientos.EsNula()) {
            return;
        }
        for (int fila = 1; fila <= establecimientos.UltimaFila(); ++fila) {
            const auto texto = [&](Columna columna) { return establecimientos(columna, fila).aTexto(); };
            lista.Anadir(QString(), texto(Columna::kCSES),
                         {texto(Columna::kCIM), texto(Columna::kDomicilio),
                          ObtenerNombreProvincia(establecimientos(Columna::kProvin, fila).aEntero16()),
                          texto(Columna::kMunici)});
        }
        SeleccionarFila();
    });
}

void frmZTListaEstablecimientos::SeleccionarFila() {
    ListaZT& lista = *m_ui->lsvEstablecimientos;
    const QString clave = QString::number(oEstablecimientos().SelCSES);
    for (int i = 1; i <= lista.Cuenta(); ++i) {
        if (lista.Texto(i) == clave) {
            lista.Seleccionar(i);
            lista.AsegurarVisible(i);
            return;
        }
    }
    SeleccionarPrimero(lista);
}

void frmZTListaEstablecimientos::PresentaBotones() {
    ListaZT& lista = *m_ui->lsvEstablecimientos;
    const bool hay = lista.Cuenta() > 0;
    if (hay) {
        lista.Marcar(lista.Seleccionado());
    }
    m_ui->cmdDatos->setEnabled(hay);
    m_ui->cmdEliminar->setEnabled(hay);
    m_ui->picDatos->setEnabled(hay);
    m_ui->picEliminar->setEnabled(hay);
    m_ui->picDatos->setIcon(ilsMDI16(hay ? kImagenDatos : kImagenDatosGris));
    m_ui->picEliminar->setIcon(ilsMDI16(hay ? kImagenBorrar : kImagenBorrarGris));
}

qint32 frmZTListaEstablecimientos::Elegido() const {
    const ListaZT& lista = *m_ui->lsvEstablecimientos;
    return Valor(lista.Texto(lista.Seleccionado())).aEntero32();
}

void frmZTListaEstablecimientos::cmdNuevo_Click() {
    oEstablecimientos().Modo = cZTEstablecimientos::kModoNuevo;
    oEstablecimientos().Procedencia = cZTEstablecimientos::kDesdeLista;
    Formularios::Descargar(Nombre());
    Formularios::Mostrar(Forma::Establecimiento);
}

void frmZTListaEstablecimientos::cmdDatos_Click() {
    oEstablecimientos().Procedencia = cZTEstablecimientos::kDesdeLista;
    lsvEstablecimientos_DblClick();
}

void frmZTListaEstablecimientos::lsvEstablecimientos_DblClick() {
    cZTEstablecimientos& e = oEstablecimientos();
    e.CSES = Elegido();
    Formularios::Descargar(Nombre());
    e.Modo = cZTEstablecimientos::kModoExistente;
    e.InicializarDatos();
    Formularios::Mostrar(Forma::Establecimiento);
}

void frmZTListaEstablecimientos::lsvEstablecimientos_KeyPress(int& keyAscii) {
    const ListaZT& lista = *m_ui->lsvEstablecimientos;
    if (keyAscii == kIntro && lista.Marcado(lista.Seleccionado())) {
        keyAscii = 0;
        cmdDatos_Click();
    }
}

void frmZTListaEstablecimientos::cmdEliminar_Click() {
    Pantalla().PonerPuntero(Puntero::Espera);
    cZTEstablecimientos& e = oEstablecimientos();
    const qint32 clave = Elegido();
    if (!cZTEstablecimientos::EstablecimientosSinAnexos(clave)) {
        Mensaje(Texto(Id::EstablecimientoConAnexos), Texto(Id::BorradoDeEstablecimiento), true);
        m_ui->lsvEstablecimientos->setFocus();
    } else if (Mensaje(Texto(Id::PreguntaEliminarEstablecimiento), windowTitle(), false) ==
               kRespuestaAceptar) {
        e.EliminarEstablecimiento(clave);
        e.RellenarEstablecimientos();
        e.SelCSES = 0;
        RellenarEstablecimientos();
        PresentaBotones();
        if (m_ui->lsvEstablecimientos->Cuenta() == 0) {
            m_ui->cmdNuevo->setFocus();
        }
    } else {
        m_ui->lsvEstablecimientos->setFocus();
    }
    Pantalla().PonerPuntero(Puntero::Normal);
}

void frmZTListaEstablecimientos::cmdCerrarLista_Click() {
    Formularios::Descargar(Nombre());
    Formularios::Mostrar(Forma::ListaDeclaraciones);
}
