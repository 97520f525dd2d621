#include "forms/establishments/frmZTListaEstablecimientos.h"

#include "core/base/Pantalla.h"
#include "core/records/cZTDeclarante.h"
#include "core/records/cZTEstablecimientos.h"
#include "core/run/GeneralZT.h"
#include "core/run/Textos.h"
#include "forms/establishments/BloqueDeEstablecimientos.h"
#include "forms/runtime/Eventos.h"
#include "forms/runtime/Formularios.h"
#include "forms/runtime/GeneralZTFormularios.h"
#include "forms/runtime/NombresDeFormulario.h"
#include "forms/runtime/ParDeBotones.h"
#include "forms/widgets/Colocacion.h"
#include "ui_frmZTListaEstablecimientos.h"

using namespace Qt::StringLiterals;

frmZTListaEstablecimientos::frmZTListaEstablecimientos()
    : FormularioTrabajo(kNombre), m_ui(std::make_unique<Ui::frmZTListaEstablecimientos>()) {
    m_ui->setupUi(this);
    m_bloque = new BloqueDeEstablecimientos(
        *this, {.nuevo = [this] { ConTrampa(u"cmdNuevo_Click", [this] { cmdNuevo_Click(); }); },
                .datos = [this] { ConTrampa(u"cmdDatos_Click", [this] { cmdDatos_Click(); }); },
                .eliminar = [this] { ConTrampa(u"cmdEliminar_Click", [this] { cmdEliminar_Click(); }); }});
    m_cerrar =
        new ParDeBotones(*this, *m_ui->cmdCerrarLista, *m_ui->picCerrar, {Imagen16::Cerrar, Id::Salir},
                         [this] { ConTrampa(u"cmdCerrarLista_Click", [this] { cmdCerrarLista_Click(); }); });

    Conectar(*this, m_ui->lsvEstablecimientos, &ListaZT::DblClick,
             [this] { ConTrampa(u"lsvEstablecimientos_DblClick", [this] { m_bloque->AbrirElegido(); }); });
    connect(m_ui->lsvEstablecimientos, &ListaZT::KeyPress, this, [this](int& keyAscii) {
        ConTrampa(u"lsvEstablecimientos_KeyPress", [&] { lsvEstablecimientos_KeyPress(keyAscii); });
    });
}

frmZTListaEstablecimientos::~frmZTListaEstablecimientos() = default;

void frmZTListaEstablecimientos::AnadirCaptions() {
    ConTrampa(u"AnadirCaptions", [this] {
        setWindowTitle(Texto(Id::MantenimientoDeEstablecimientos));
        m_ui->lblDatosDte->setText(Texto(Id::DatosDelDeclarante));
        m_ui->lblDeclarante->setText(Texto(Id::Nombre));
        m_ui->lblDec->setText(oDeclarante().Nombre);
        m_ui->lblNIF->setText(Texto(Id::NIF));
        m_ui->lblDNI->setText(oDeclarante().NIF);
        m_bloque->PonerTextos();
        m_cerrar->PonerTexto();
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
    ConTrampa(u"InicializarLista", [this] { m_bloque->PonerColumnas(*m_ui->cabLista); });
}

void frmZTListaEstablecimientos::RellenarEstablecimientos() {
    EventoConTrampa(Nombre(), u"frmNotListaCenso.RellenarEstablecimientos"_s, [this] {
        m_ui->lsvEstablecimientos->Limpiar();
        oEstablecimientos().RellenarEstablecimientos();
        const Tabla& establecimientos = oEstablecimientos().BufferEstablecimientos;
        if (establecimientos.EsNula()) {
            return;
        }
        for (int fila = 1; fila <= establecimientos.UltimaFila(); ++fila) {
            m_bloque->Anadir(establecimientos, fila);
        }
        SeleccionarFila();
    });
}

void frmZTListaEstablecimientos::SeleccionarFila() {
    ListaZT& lista = *m_ui->lsvEstablecimientos;
    const int elegida = lista.BuscarTexto(QString::number(oEstablecimientos().SelCSES));
    if (elegida == 0) {
        SeleccionarPrimero(lista);
        return;
    }
    lista.Seleccionar(elegida);
    lista.AsegurarVisible(elegida);
}

void frmZTListaEstablecimientos::PresentaBotones() {
    ListaZT& lista = *m_ui->lsvEstablecimientos;
    const bool hay = lista.Cuenta() > 0;
    if (hay) {
        lista.Marcar(lista.Seleccionado());
    }
    m_bloque->HabilitarOrdenes(hay);
}

void frmZTListaEstablecimientos::cmdNuevo_Click() {
    oEstablecimientos().Modo = cZTEstablecimientos::kModoNuevo;
    oEstablecimientos().Procedencia = cZTEstablecimientos::kDesdeLista;
    Formularios::Descargar(Nombre());
    Formularios::Mostrar(Forma::Establecimiento);
}

void frmZTListaEstablecimientos::cmdDatos_Click() {
    oEstablecimientos().Procedencia = cZTEstablecimientos::kDesdeLista;
    m_bloque->AbrirElegido();
}

void frmZTListaEstablecimientos::lsvEstablecimientos_KeyPress(int& keyAscii) {
    const ListaZT& lista = *m_ui->lsvEstablecimientos;
    if (keyAscii == ListaZT::kIntro && lista.Marcado(lista.Seleccionado())) {
        keyAscii = 0;
        cmdDatos_Click();
    }
}

void frmZTListaEstablecimientos::cmdEliminar_Click() {
    Pantalla().PonerPuntero(Puntero::Espera);
    cZTEstablecimientos& e = oEstablecimientos();
    const qint32 clave = m_ui->lsvEstablecimientos->ClaveElegida();
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
